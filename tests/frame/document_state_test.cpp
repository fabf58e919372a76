// Values kept per drawing: each open document has its own, made on first use and dropped with
// the document.
#include "frame/doc_data.h"
#include "tests/support/host_session.h"

namespace {

using testing_support::HostSession;

struct Counter {
    int value = 0;
};
struct Label {
    std::wstring text = L"fresh";
};

class DocumentState : public HostSession {};

TEST_F(DocumentState, EachDrawingHasItsOwnValueOfEachType) {
    host::Document& first = doc();
    vrn2::documentState<Counter>().value = 1;
    vrn2::documentState<Label>().text = L"first";

    host::Document& second = host().openDocument(L"second.dxf");
    EXPECT_EQ(vrn2::documentState<Counter>().value, 0) << "a new drawing starts from a new value";
    EXPECT_EQ(vrn2::documentState<Label>().text, L"fresh");
    vrn2::documentState<Counter>().value = 2;

    host().makeCurrent(first);
    EXPECT_EQ(vrn2::documentState<Counter>().value, 1);
    EXPECT_EQ(vrn2::documentState<Label>().text, L"first");
    EXPECT_EQ(&vrn2::documentState<Counter>(), &vrn2::documentState<Counter>()) << "the same value each time";
    EXPECT_EQ(vrn2::docDataManager().docData().stateCount(), 2u);

    host().makeCurrent(second);
    EXPECT_EQ(vrn2::documentState<Counter>().value, 2);
    EXPECT_EQ(vrn2::docDataManager().size(), 2u);
}

TEST_F(DocumentState, AClosedDrawingTakesItsValuesAlong) {
    vrn2::documentState<Counter>().value = 7;
    host::Document& second = host().openDocument(L"second.dxf");
    vrn2::documentState<Counter>().value = 8;
    size_t records = vrn2::docDataManager().size();
    host().closeDocument(second);
    EXPECT_EQ(vrn2::docDataManager().size(), records - 1);
    EXPECT_EQ(vrn2::documentState<Counter>().value, 7) << "the first drawing is current again";

    // A drawing opened later never sees what a closed one held.
    host().openDocument(L"third.dxf");
    EXPECT_EQ(vrn2::documentState<Counter>().value, 0);

    host().closeAllDocuments();
    EXPECT_EQ(vrn2::docDataManager().size(), 0u);
    // With no drawing open the value belongs to none, and nothing breaks.
    vrn2::documentState<Counter>().value = 3;
    EXPECT_EQ(vrn2::docDataManager().size(), 0u);
}

}  // namespace
