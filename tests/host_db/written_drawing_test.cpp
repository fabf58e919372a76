// Drawings the host writes: every kind of entity it makes, with layers, applications, extended
// data, a block with attributes, changed and deleted entities, on a new drawing, an R2000 one
// and an R12 one. Each file must pass the lint and read back unchanged. test_host_written.py
// makes the same drawings through the console and checks them with ezdxf.
#include "host/text.h"
#include "tests/host_db/db_fixture.h"
#include "tests/host_db/dxf_lint.h"

namespace dbtest {
namespace {

using host::RbPtr;

std::string r2000Base() {
    std::string text = host::db::Database().dxfText();
    auto at = text.find("AC1021");
    text.replace(at, 6, "AC1015");
    return text;
}

std::string r12Base() {
    return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n  9\n$DWGCODEPAGE\n  3\nANSI_936\n"
           "  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";
}

class WrittenDrawing : public DrawingTest {
protected:
    void make(resbuf* list) {
        RbPtr owned(list);
        ASSERT_EQ(acdbEntMake(list), RTNORM) << "ERRNO " << errnoValue();
    }
    // Puts one of each thing the host makes into the current drawing.
    void fill() {
        ASSERT_EQ(acdbRegApp(L"K_DUCT_SIZE"), RTNORM);
        ASSERT_EQ(acdbRegApp(L"STARTP"), RTNORM);
        const double o[3] = {0, 0, 0}, a[3] = {1000, 0, 0}, b[3] = {1000, 500, 0}, c[3] = {50, 50, 0};
        make(acutBuildList(RTDXF0, L"LINE", 8, L"SLJS-1", 62, 3, 10, o, 11, a, -3, 1001, L"K_DUCT_SIZE", 1002,
                           L"{", 1040, 500.0, 1040, 320.0, 1002, L"}", 0));
        make(acutBuildList(RTDXF0, L"LINE", 8, L"风管", 10, a, 11, b, -3, 1001, L"STARTP", 1010, a, 1000,
                           L"送风 DN100", 1070, 7, 1071, 123456L, 1005, L"1F", 0));
        make(acutBuildList(RTDXF0, L"CIRCLE", 10, c, 40, 5.0, 0));
        make(acutBuildList(RTDXF0, L"ARC", 10, c, 40, 8.0, 50, 0.0, 51, 1.5707963267948966, 0));
        make(acutBuildList(RTDXF0, L"TEXT", 10, c, 40, 3.5, 1, L"送风管 %%c100", 72, 1, 73, 2, 11, c, 0));
        make(acutBuildList(RTDXF0, L"POINT", 10, b, 0));
        make(acutBuildList(RTDXF0, L"SOLID", 10, o, 11, a, 12, b, 13, c, 0));
        if (!db().isR12()) {  // types of R13 and later
            const double major[3] = {20, 0, 0};
            make(acutBuildList(RTDXF0, L"ELLIPSE", 10, c, 11, major, 40, 0.5, 41, 0.0, 42, 6.283185307179586, 0));
            make(acutBuildList(RTDXF0, L"MTEXT", 10, c, 40, 2.5, 1, L"两行\\P文字", 0));
        }
        // A 2D and a 3D polyline.
        make(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 70, 1, 0));
        for (const double* v : {o, a, b}) make(acutBuildList(RTDXF0, L"VERTEX", 10, v, 42, 0.25, 0));
        make(acutBuildList(RTDXF0, L"SEQEND", 0));
        const double up[3] = {0, 0, 300};
        make(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 70, 8, 0));
        for (const double* v : {o, up}) make(acutBuildList(RTDXF0, L"VERTEX", 10, v, 70, 32, 0));
        make(acutBuildList(RTDXF0, L"SEQEND", 0));
        // A block with an attribute definition and an insert of it with its attribute.
        make(acutBuildList(RTDXF0, L"BLOCK", 2, L"C201-1", 70, 2, 10, o, 0));
        make(acutBuildList(RTDXF0, L"CIRCLE", 10, o, 40, 5.0, 0));
        make(acutBuildList(RTDXF0, L"ATTDEF", 10, o, 40, 2.5, 1, L"", 2, L"F-LL", 3, L"流量", 70, 0, 0));
        make(acutBuildList(RTDXF0, L"ENDBLK", 0));
        make(acutBuildList(RTDXF0, L"INSERT", 2, L"C201-1", 10, b, 66, 1, 0));
        make(acutBuildList(RTDXF0, L"ATTRIB", 10, b, 40, 2.5, 1, L"1200", 2, L"F-LL", 70, 0, 0));
        make(acutBuildList(RTDXF0, L"SEQEND", 0));
        // A deleted entity is not written; a changed one is.
        make(acutBuildList(RTDXF0, L"LINE", 10, o, 11, b, 0));
        ads_name e;
        last(e);
        ASSERT_EQ(acdbEntDel(e), RTNORM);
        ASSERT_EQ(acdbEntNext(nullptr, e), RTNORM);
        RbPtr change(acutBuildList(-1, e, 8, L"CHANGED", 62, 1, 0));
        ASSERT_EQ(acdbEntMod(change.get()), RTNORM);
        if (!db().isR12()) {
            const double left[3] = {50, 200, 0}, right[3] = {150, 200, 0};
            make(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 2, 70, 1, 43, 50.0, 10, left, 42, 1.0, 10, right,
                               42, 1.0, 0));
        }
    }
    void writeAndCheck(const std::string& name, size_t expectedEntities) {
        std::string text = db().dxfText();
        for (const auto& fault : lintDxf(text)) ADD_FAILURE() << name << ": " << fault;
        std::wstring error;
        auto reread = host::db::Database::parse(text, L"written", error);
        ASSERT_NE(reread, nullptr) << host::toUtf8(error);
        EXPECT_EQ(reread->dxfText(), text) << "what the host writes it reads back unchanged";
        size_t entities = 0;
        for (uint32_t i : reread->entities()) entities += reread->record(i).kind == host::db::RecordKind::Entity;
        EXPECT_EQ(entities, expectedEntities);
    }
};

TEST_F(WrittenDrawing, NewDrawing) {
    fill();
    writeAndCheck("host_new.dxf", 13);
}

TEST_F(WrittenDrawing, R2000Drawing) {
    openDxf(r2000Base());
    ASSERT_EQ(db().acadver(), "AC1015");
    fill();
    writeAndCheck("host_r2000.dxf", 13);
}

TEST_F(WrittenDrawing, R12Drawing) {
    openDxf(r12Base());
    fill();
    writeAndCheck("host_r12.dxf", 10);
    const double a[3] = {0, 0, 0}, b[3] = {1, 0, 0};
    RbPtr lw(acutBuildList(RTDXF0, L"LWPOLYLINE", 10, a, 10, b, 0));
    EXPECT_EQ(acdbEntMake(lw.get()), RTREJ) << "R12 has no light-weight polylines";
    EXPECT_EQ(errnoValue(), 36);
    std::string text = db().dxfText();
    EXPECT_EQ(text.find("AcDb"), std::string::npos) << "R12 has no subclass markers";
    EXPECT_EQ(text.find("\n330\n"), std::string::npos) << "nor owners";
}

TEST_F(WrittenDrawing, EntitiesOnlyDrawingGetsTheHeaderItsHandlesNeed) {
    openDxf("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n");
    EXPECT_EQ(db().dxfText(), "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n");
    const double a[3] = {0, 0, 0}, b[3] = {1, 1, 0};
    makeLine(a, b);
    std::string text = db().dxfText();
    EXPECT_EQ(text.rfind("  0\nSECTION\n  2\nHEADER\n  9\n$HANDLING\n 70\n1\n  9\n$HANDSEED\n", 0), 0u) << text;
    for (const auto& fault : lintDxf(text)) ADD_FAILURE() << fault;
}

}  // namespace
}  // namespace dbtest
