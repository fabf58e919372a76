// Changing entities through acdbEntMod and making them in sequence: vertex lists, R12
// entities without subclasses, parts of complex entities, interrupted complex entities and
// names from another open drawing.
#include <string>

#include "host/text.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;

int count(const resbuf* rb, int code) {
    int n = 0;
    for (; rb; rb = rb->rbnext) n += rb->restype == code;
    return n;
}

class EntityEdit : public DrawingTest {
protected:
    void make(resbuf* list) {
        RbPtr owned(list);
        ASSERT_EQ(acdbEntMake(list), RTNORM) << "ERRNO " << errnoValue();
    }
};

TEST_F(EntityEdit, NewVerticesReplaceTheOldOnesAndTheCountFollows) {
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 0}, c[3] = {10, 10, 0}, d[3] = {0, 10, 0};
    make(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 4, 70, 0, 43, 2.0, 10, a, 10, b, 10, c, 10, d, 0));
    ads_name e;
    last(e);
    const double p[3] = {5, 5, 0}, q[3] = {6, 7, 0};
    RbPtr change(acutBuildList(-1, e, 10, p, 42, 0.5, 10, q, 0));
    ASSERT_EQ(acdbEntMod(change.get()), RTNORM);
    RbPtr list = get(e);
    EXPECT_EQ(count(list.get(), 10), 2);
    EXPECT_EQ(find(list.get(), 90)->resval.rlong, 2);
    EXPECT_EQ(find(list.get(), 43)->resval.rreal, 2.0) << "the constant width stays";
    EXPECT_EQ(find(list.get(), 42)->resval.rreal, 0.5);
    EXPECT_EQ(find(list.get(), 10, 1)->resval.rpoint[1], 7.0);
    // In the file the count is still the first group of the polyline's subclass.
    std::string file = db().dxfText();
    EXPECT_NE(file.find("AcDbPolyline\r\n 90\r\n2\r\n"), std::string::npos);
    EXPECT_EQ(file.find(" 30\r\n", file.find("AcDbPolyline")), file.find(" 30\r\n", file.find("AcDbPolyline")))
        << "vertices stay plan points";
}

TEST_F(EntityEdit, SubstitutedListKeepsEveryOtherGroupAsWritten) {
    const double a[3] = {0.1, 0.2, 0.3}, b[3] = {1.0 / 3.0, 2, 0};
    make(acutBuildList(RTDXF0, L"LINE", 8, L"PIPE", 10, a, 11, b, 0));
    ads_name e;
    last(e);
    std::string before = db().dxfText();
    RbPtr list = get(e);
    resbuf* layer = const_cast<resbuf*>(find(list.get(), 8));
    std::free(layer->resval.rstring);
    layer->resval.rstring = host::copyString(L"DUCT");
    ASSERT_EQ(acdbEntMod(list.get()), RTNORM);
    std::string after = db().dxfText();
    // Only the layer's line differs (and the new layer's table entry).
    const std::string rest = "\r\n100\r\nAcDbLine\r\n 10\r\n0.1\r\n 20\r\n0.2\r\n 30\r\n0.3\r\n 11\r\n0.3333333333333333\r\n";
    EXPECT_NE(before.find("\r\nPIPE" + rest), std::string::npos);
    EXPECT_NE(after.find("\r\nDUCT" + rest), std::string::npos);
    EXPECT_EQ(after.find("\r\nPIPE" + rest), std::string::npos);
}

TEST_F(EntityEdit, R12EntitiesHaveNoSubclassesAndTakeNewGroupsAtTheirEnd) {
    openDxf(dxf({{0, "SECTION"}, {2, "HEADER"}, {9, "$ACADVER"}, {1, "AC1009"}, {9, "$HANDLING"}, {70, "     1"},
                 {9, "$HANDSEED"}, {5, "30"}, {0, "ENDSEC"}, {0, "SECTION"}, {2, "ENTITIES"}, {0, "LINE"},
                 {5, "2A"}, {8, "0"}, {10, "1.0"}, {20, "2.0"}, {30, "0.0"}, {11, "3.0"}, {21, "4.0"}, {31, "0.0"},
                 {0, "ENDSEC"}, {0, "EOF"}}));
    ads_name e;
    ASSERT_EQ(acdbHandEnt(L"2a", e), RTNORM);
    RbPtr list = get(e);
    EXPECT_EQ(find(list.get(), 100), nullptr);
    EXPECT_EQ(find(list.get(), 330), nullptr) << "R12 has no owners";
    EXPECT_EQ(text(find(list.get(), 5)), L"2A");
    RbPtr colour(acutBuildList(-1, e, 62, 5, 0));
    ASSERT_EQ(acdbEntMod(colour.get()), RTNORM);
    std::string file = db().dxfText();
    EXPECT_NE(file.find(" 31\n0.0\n 62\n5\n  0\nENDSEC"), std::string::npos) << file;
    EXPECT_NE(file.find(" 70\n     1\n"), std::string::npos) << "what was not changed keeps its spacing";
}

TEST_F(EntityEdit, VerticesAndAttributesCanBeChangedButNotSeqend) {
    const double a[3] = {0, 0, 0}, b[3] = {5, 0, 0};
    make(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 70, 0, 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 10, a, 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 10, b, 0));
    make(acutBuildList(RTDXF0, L"SEQEND", 0));
    ads_name head, vertex, end;
    last(head);
    ASSERT_EQ(acdbEntNext(head, vertex), RTNORM);
    const double moved[3] = {-1, -2, 0};
    RbPtr change(acutBuildList(-1, vertex, 10, moved, 42, 0.25, 0));
    ASSERT_EQ(acdbEntMod(change.get()), RTNORM);
    EXPECT_EQ(find(get(vertex).get(), 10)->resval.rpoint[1], -2.0);
    std::string file = db().dxfText();
    size_t vertexAt = file.find("AcDb2dVertex");
    ASSERT_NE(vertexAt, std::string::npos);
    EXPECT_LT(file.find(" 42\r\n0.25\r\n"), file.find("SEQEND")) << "the bulge goes into the vertex's subclass";
    ASSERT_EQ(acdbEntNext(vertex, end), RTNORM);
    ASSERT_EQ(acdbEntNext(end, end), RTNORM);
    EXPECT_EQ(text(find(get(end).get(), 0)), L"SEQEND");
    RbPtr seqend(acutBuildList(-1, end, 8, L"X", 0));
    EXPECT_EQ(acdbEntMod(seqend.get()), RTREJ);
    EXPECT_EQ(errnoValue(), 32);
}

TEST_F(EntityEdit, AnUnfinishedPolylineIsDroppedByTheNextEntity) {
    const double a[3] = {0, 0, 0}, b[3] = {5, 0, 0};
    make(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 70, 0, 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 10, a, 0));
    make(acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0));
    RbPtr end(acutBuildList(RTDXF0, L"SEQEND", 0));
    EXPECT_EQ(acdbEntMake(end.get()), RTREJ) << "nothing is waiting for its end any more";
    ads_name first, next;
    ASSERT_EQ(acdbEntNext(nullptr, first), RTNORM);
    EXPECT_EQ(text(find(get(first).get(), 0)), L"LINE");
    EXPECT_EQ(acdbEntNext(first, next), RTERROR);
    // An ENDBLK with a complex entity unfinished inside the block is refused.
    make(acutBuildList(RTDXF0, L"BLOCK", 2, L"B1", 70, 0, 10, a, 0));
    make(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 70, 0, 0));
    RbPtr endblk(acutBuildList(RTDXF0, L"ENDBLK", 0));
    EXPECT_EQ(acdbEntMake(endblk.get()), RTREJ);
    EXPECT_EQ(errnoValue(), 38);
    EXPECT_EQ(acdbEntMake(endblk.get()), RTNORM) << "the block itself is still open";
    EXPECT_NE(db().findBlock(L"B1"), host::db::kNone);
}

TEST_F(EntityEdit, NamesOfAnotherOpenDrawingAreRefused) {
    const double a[3] = {0, 0, 0}, b[3] = {5, 0, 0};
    make(acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0));
    ads_name mine;
    last(mine);
    host::Document& first = doc();
    host::Host::instance().openDocument(L"second.dxf");
    EXPECT_EQ(acdbEntGet(mine), nullptr);
    EXPECT_EQ(errnoValue(), 2);
    ads_name ss;
    ASSERT_EQ(acedSSAdd(nullptr, nullptr, ss), RTNORM);
    host::Host::instance().makeCurrent(first);
    long n;
    EXPECT_EQ(acedSSLength(ss, &n), RTERROR) << "a set of the other drawing";
    RbPtr back(acdbEntGet(mine));
    EXPECT_NE(back, nullptr);
}

TEST_F(EntityEdit, OwnersAndReactorsOfAnEntGetListAreNotCopiedByEntMake) {
    const double a[3] = {0, 0, 0}, b[3] = {5, 0, 0};
    make(acutBuildList(RTDXF0, L"LINE", 8, L"0", 10, a, 11, b, 0));
    ads_name e;
    last(e);
    RbPtr list = get(e);
    ASSERT_EQ(acdbEntMake(list.get()), RTNORM) << "an entget list makes a copy";
    ads_name copy;
    last(copy);
    EXPECT_FALSE(acdbNameEqual(copy, e));
    RbPtr made = get(copy);
    EXPECT_NE(text(find(made.get(), 5)), text(find(list.get(), 5))) << "with a handle of its own";
    EXPECT_TRUE(acdbNameEqual(find(made.get(), 330)->resval.rlname, find(list.get(), 330)->resval.rlname));
    EXPECT_EQ(count(made.get(), 100), 2);
}

TEST_F(EntityEdit, XdSizeRefusesUnbalancedBracesAndBadCodes) {
    ASSERT_EQ(acdbRegApp(L"APP"), RTNORM);
    long size = 0;
    RbPtr open(acutBuildList(1001, L"APP", 1002, L"{", 0));
    EXPECT_EQ(acdbXdSize(open.get(), &size), RTERROR);
    EXPECT_EQ(errnoValue(), 49);
    RbPtr badCode(acutBuildList(1001, L"APP", 1040, 1.0, 0));
    badCode->rbnext->restype = 1006;  // no extended-data code
    EXPECT_EQ(acdbXdSize(badCode.get(), &size), RTERROR);
    RbPtr twice(acutBuildList(1001, L"APP", 1070, 1, 1001, L"app", 1070, 2, 0));
    EXPECT_EQ(acdbXdSize(twice.get(), &size), RTERROR) << "one block per application";
}

}  // namespace
}  // namespace dbtest
