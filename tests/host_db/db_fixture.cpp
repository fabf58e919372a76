#include "tests/host_db/db_fixture.h"

#include "host/text.h"

namespace dbtest {

void DrawingTest::SetUp() {
    capture_ = std::make_unique<host::OutputCapture>();
    host::Host::instance().openDocument(L"");
}

void DrawingTest::TearDown() {
    host::Host::instance().closeAllDocuments();
    capture_.reset();
}

void DrawingTest::openDxf(const std::string& text) {
    std::wstring error;
    auto database = host::db::Database::parse(text, L"test.dxf", error);
    ASSERT_NE(database, nullptr) << host::toUtf8(error);
    host::Host::instance().closeAllDocuments();
    host::Host::instance().openDocument(L"test.dxf", std::move(database));
}

short DrawingTest::errnoValue() {
    const host::SysVarValue* v = doc().sysvars().find(L"ERRNO");
    return v ? v->integer : -1;
}

void DrawingTest::makeLine(const double a[3], const double b[3], const wchar_t* layer) {
    host::RbPtr list(layer ? acutBuildList(RTDXF0, L"LINE", 8, layer, 10, a, 11, b, 0)
                           : acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0));
    ASSERT_EQ(acdbEntMake(list.get()), RTNORM);
}

void DrawingTest::last(ads_name e) { ASSERT_EQ(acdbEntLast(e), RTNORM); }

const resbuf* DrawingTest::find(const resbuf* rb, int code, int occurrence) {
    for (; rb; rb = rb->rbnext)
        if (rb->restype == code && occurrence-- == 0) return rb;
    return nullptr;
}

int command(resbuf* list) {
    host::RbPtr owned(list);
    return acedCmd(list);
}

std::string dxf(const std::vector<std::pair<int, std::string>>& groups) {
    std::string out;
    for (const auto& [code, value] : groups) {
        char buf[8];
        std::snprintf(buf, sizeof buf, "%3d", code);
        out += buf;
        out += "\n";
        out += value;
        out += "\n";
    }
    return out;
}

std::vector<host::RbPtr> DrawingTest::all(const wchar_t* type) {
    std::vector<host::RbPtr> out;
    host::RbPtr filter(acutBuildList(RTDXF0, type, 0));
    ads_name ss;
    if (acedSSGet(L"X", nullptr, nullptr, filter.get(), ss) != RTNORM) return out;
    long n = 0;
    acedSSLength(ss, &n);
    for (long i = 0; i < n; ++i) {
        ads_name e;
        acedSSName(ss, i, e);
        host::RbPtr apps(acutBuildList(RTSTR, L"*", 0));
        out.emplace_back(acdbEntGetX(e, apps.get()));
    }
    acedSSFree(ss);
    return out;
}

}  // namespace dbtest
