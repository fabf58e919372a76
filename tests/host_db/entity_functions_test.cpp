// The entity functions of the interface on a new drawing: list shape, making, changing,
// deleting, walking, handles and names.
#include <cwchar>
#include <set>
#include <string>

#include "host/text.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;

const double kA[3] = {1, 2, 0};
const double kB[3] = {11, 12, 0};

class EntityFunctions : public DrawingTest {};

TEST_F(EntityFunctions, EntGetStartsWithNameThenTypeAndKeepsPointsWhole) {
    makeLine(kA, kB);
    ads_name e;
    last(e);
    RbPtr list = get(e);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->restype, -1);
    EXPECT_TRUE(acdbNameEqual(list->resval.rlname, e));
    ASSERT_NE(list->rbnext, nullptr);
    EXPECT_EQ(list->rbnext->restype, 0);
    EXPECT_EQ(text(list->rbnext), L"LINE");
    const resbuf* p10 = find(list.get(), 10);
    const resbuf* p11 = find(list.get(), 11);
    ASSERT_NE(p10, nullptr);
    ASSERT_NE(p11, nullptr);
    EXPECT_EQ(p10->resval.rpoint[0], 1.0);
    EXPECT_EQ(p10->resval.rpoint[1], 2.0);
    EXPECT_EQ(p11->resval.rpoint[0], 11.0);
    EXPECT_EQ(find(list.get(), 20), nullptr) << "Y of a point is not a group of its own";
    EXPECT_EQ(text(find(list.get(), 8)), L"0") << "the current layer of a new drawing";
    // The owner is model space's block record, whose entity list names it.
    const resbuf* owner = find(list.get(), 330);
    ASSERT_NE(owner, nullptr);
    RbPtr record = get(owner->resval.rlname);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(text(find(record.get(), 0)), L"BLOCK_RECORD");
    EXPECT_EQ(text(find(record.get(), 2)), L"*Model_Space");
}

TEST_F(EntityFunctions, NewEntitiesTakeTheCurrentLayerAndFreshHandles) {
    host::db::Database& database = db();
    (void)database;
    resbuf clayer{};
    clayer.restype = RTSTR;
    clayer.resval.rstring = const_cast<wchar_t*>(L"PIPES");
    makeLine(kA, kB, L"PIPES");  // makes the layer
    ASSERT_EQ(acedSetVar(L"CLAYER", &clayer), RTNORM);
    std::set<std::wstring> handles;
    for (int i = 0; i < 5; ++i) {
        makeLine(kA, kB);
        ads_name e;
        last(e);
        RbPtr list = get(e);
        EXPECT_EQ(text(find(list.get(), 8)), L"PIPES");
        handles.insert(text(find(list.get(), 5)));
    }
    EXPECT_EQ(handles.size(), 5u);
    // The saved file's seed lies above every handle in it.
    std::string saved = db().dxfText();
    std::wstring error;
    auto reread = host::db::Database::parse(saved, L"saved", error);
    ASSERT_NE(reread, nullptr) << host::toUtf8(error);
    uint64_t seed = 0;
    ASSERT_TRUE(host::db::parseHandle(reread->headerValue("$HANDSEED", 5), seed));
    for (const auto& r : reread->records()) EXPECT_LT(r.handle, seed);
    ASSERT_NE(reread->findEntry("LAYER", L"pipes"), host::db::kNone);
}

TEST_F(EntityFunctions, EntMakeWantsTheTypeFirstOrAfterTheName) {
    RbPtr noType(acutBuildList(8, L"0", 10, kA, 11, kB, 0));
    EXPECT_EQ(acdbEntMake(noType.get()), RTREJ);
    RbPtr typeLate(acutBuildList(10, kA, RTDXF0, L"LINE", 11, kB, 0));
    EXPECT_EQ(acdbEntMake(typeLate.get()), RTREJ);
    ads_name ignored = {12345, 678};
    RbPtr afterName(acutBuildList(-1, ignored, RTDXF0, L"LINE", 10, kA, 11, kB, 0));
    EXPECT_EQ(acdbEntMake(afterName.get()), RTNORM);
    RbPtr missingEnd(acutBuildList(RTDXF0, L"LINE", 10, kA, 0));
    EXPECT_EQ(acdbEntMake(missingEnd.get()), RTREJ);
    EXPECT_EQ(errnoValue(), 47);
    RbPtr unknown(acutBuildList(RTDXF0, L"WIDGET", 10, kA, 0));
    EXPECT_EQ(acdbEntMake(unknown.get()), RTREJ);
    EXPECT_EQ(errnoValue(), 36);
    RbPtr badLinetype(acutBuildList(RTDXF0, L"LINE", 6, L"NOSUCH", 10, kA, 11, kB, 0));
    EXPECT_EQ(acdbEntMake(badLinetype.get()), RTREJ);
    EXPECT_EQ(errnoValue(), 26);
}

TEST_F(EntityFunctions, EntModCannotChangeTypeOrHandle) {
    makeLine(kA, kB);
    ads_name e;
    last(e);
    RbPtr list = get(e);
    resbuf* type = const_cast<resbuf*>(find(list.get(), 0));
    std::free(type->resval.rstring);
    type->resval.rstring = host::copyString(L"CIRCLE");
    EXPECT_EQ(acdbEntMod(list.get()), RTREJ);
    EXPECT_EQ(errnoValue(), 24);

    list = get(e);
    resbuf* handle = const_cast<resbuf*>(find(list.get(), 5));
    std::free(handle->resval.rstring);
    handle->resval.rstring = host::copyString(L"FFFF");
    EXPECT_EQ(acdbEntMod(list.get()), RTREJ);
    EXPECT_EQ(errnoValue(), 33);
}

TEST_F(EntityFunctions, EntModChangesOnlyTheGroupsGiven) {
    makeLine(kA, kB);
    ads_name e;
    last(e);
    const double moved[3] = {5, 6, 7};
    RbPtr change(acutBuildList(-1, e, 8, L"DUCT", 11, moved, 0));
    ASSERT_EQ(acdbEntMod(change.get()), RTNORM);
    RbPtr list = get(e);
    EXPECT_EQ(text(find(list.get(), 8)), L"DUCT");
    EXPECT_EQ(find(list.get(), 10)->resval.rpoint[0], 1.0);
    EXPECT_EQ(find(list.get(), 11)->resval.rpoint[2], 7.0);
    // A colour the line had not is added among the entity's common groups.
    RbPtr colour(acutBuildList(-1, e, 62, 3, 0));
    ASSERT_EQ(acdbEntMod(colour.get()), RTNORM);
    list = get(e);
    const resbuf* c = find(list.get(), 62);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(c->resval.rint, 3);
    // 62 comes before the line's own subclass marker.
    int seenLineMarker = 0;
    for (const resbuf* rb = list.get(); rb != c; rb = rb->rbnext)
        seenLineMarker += rb->restype == 100 && text(rb) == L"AcDbLine";
    EXPECT_EQ(seenLineMarker, 0);
    RbPtr badColour(acutBuildList(-1, e, 62, 300, 0));
    EXPECT_EQ(acdbEntMod(badColour.get()), RTREJ);
    EXPECT_EQ(errnoValue(), 27);
}

TEST_F(EntityFunctions, EntDelTogglesAndEntNextSkipsDeleted) {
    makeLine(kA, kB);
    ads_name first;
    last(first);
    makeLine(kB, kA);
    ads_name second;
    last(second);
    ASSERT_EQ(acdbEntDel(first), RTNORM);
    ads_name walked;
    ASSERT_EQ(acdbEntNext(nullptr, walked), RTNORM);
    EXPECT_TRUE(acdbNameEqual(walked, second));
    EXPECT_EQ(acdbEntGet(first), nullptr);
    ASSERT_EQ(acdbEntDel(first), RTNORM);  // restored
    ASSERT_EQ(acdbEntNext(nullptr, walked), RTNORM);
    EXPECT_TRUE(acdbNameEqual(walked, first));
    ads_name after;
    ASSERT_EQ(acdbEntNext(walked, after), RTNORM);
    EXPECT_TRUE(acdbNameEqual(after, second));
    EXPECT_EQ(acdbEntNext(second, after), RTERROR);
    EXPECT_EQ(errnoValue(), 8);
}

TEST_F(EntityFunctions, EntNextOfAnEmptyDrawingAndEntLast) {
    ads_name e;
    EXPECT_EQ(acdbEntNext(nullptr, e), RTERROR);
    EXPECT_EQ(acdbEntLast(e), RTERROR);
    EXPECT_EQ(errnoValue(), 10);
}

TEST_F(EntityFunctions, HandEntFindsDeletedEntitiesAndRefusesBadHandles) {
    makeLine(kA, kB);
    ads_name e;
    last(e);
    std::wstring handle = text(find(get(e).get(), 5));
    ASSERT_EQ(acdbEntDel(e), RTNORM);
    ads_name found;
    ASSERT_EQ(acdbHandEnt(handle.c_str(), found), RTNORM);
    EXPECT_TRUE(acdbNameEqual(found, e));
    std::wstring lower = handle;
    for (auto& c : lower) c = static_cast<wchar_t>(std::towlower(c));
    EXPECT_EQ(acdbHandEnt(lower.c_str(), found), RTNORM);
    EXPECT_EQ(acdbHandEnt(L"FFFFFF", found), RTERROR);
    EXPECT_EQ(errnoValue(), 13);
    EXPECT_EQ(acdbHandEnt(L"not hex", found), RTERROR);
}

TEST_F(EntityFunctions, NamesOfAClosedDrawingAreRefused) {
    makeLine(kA, kB);
    ads_name e;
    last(e);
    host::Host::instance().closeAllDocuments();
    host::Host::instance().openDocument(L"");
    makeLine(kA, kB);  // same place in the new drawing
    EXPECT_EQ(acdbEntGet(e), nullptr);
    EXPECT_EQ(errnoValue(), 2);
    EXPECT_EQ(acdbEntDel(e), RTERROR);
    ads_name bogus = {0, 0};
    EXPECT_EQ(acdbEntGet(bogus), nullptr);
    ads_name huge = {0x7fffffff, 0x7fffffff};
    EXPECT_EQ(acdbEntGet(huge), nullptr);
}

TEST_F(EntityFunctions, PolylineIsMadeWholeAtItsSeqend) {
    const double v1[3] = {0, 0, 0}, v2[3] = {10, 0, 0}, v3[3] = {10, 10, 0};
    RbPtr head(acutBuildList(RTDXF0, L"POLYLINE", 8, L"PIPE", 66, 1, 70, 0, 0));
    ASSERT_EQ(acdbEntMake(head.get()), RTNORM);
    ads_name e;
    EXPECT_EQ(acdbEntLast(e), RTERROR) << "nothing is in the drawing before SEQEND";
    for (const double* v : {v1, v2, v3}) {
        RbPtr vertex(acutBuildList(RTDXF0, L"VERTEX", 10, v, 0));
        ASSERT_EQ(acdbEntMake(vertex.get()), RTNORM);
    }
    RbPtr end(acutBuildList(RTDXF0, L"SEQEND", 0));
    ASSERT_EQ(acdbEntMake(end.get()), RTNORM);
    last(e);
    RbPtr poly = get(e);
    EXPECT_EQ(text(find(poly.get(), 0)), L"POLYLINE");
    std::wstring polyHandle = text(find(poly.get(), 5));
    // The walk goes through the vertices and the SEQEND, each owned by the polyline.
    std::vector<std::wstring> types;
    ads_name at;
    acdbNameSet(e, at);
    ads_name next;
    while (acdbEntNext(at, next) == RTNORM) {
        RbPtr sub = get(next);
        types.push_back(text(find(sub.get(), 0)));
        const resbuf* owner = find(sub.get(), 330);
        ASSERT_NE(owner, nullptr);
        EXPECT_TRUE(acdbNameEqual(owner->resval.rlname, e));
        EXPECT_EQ(text(find(sub.get(), 8)), L"PIPE") << "parts take the polyline's layer";
        acdbNameSet(next, at);
    }
    EXPECT_EQ(types, (std::vector<std::wstring>{L"VERTEX", L"VERTEX", L"VERTEX", L"SEQEND"}));
    // A vertex cannot be deleted on its own; deleting the polyline takes its parts along.
    ads_name vertex;
    ASSERT_EQ(acdbEntNext(e, vertex), RTNORM);
    EXPECT_EQ(acdbEntDel(vertex), RTERROR);
    ASSERT_EQ(acdbEntDel(e), RTNORM);
    EXPECT_EQ(acdbEntGet(vertex), nullptr);
}

TEST_F(EntityFunctions, VertexWithoutPolylineIsRefused) {
    RbPtr vertex(acutBuildList(RTDXF0, L"VERTEX", 10, kA, 0));
    EXPECT_EQ(acdbEntMake(vertex.get()), RTREJ);
    RbPtr end(acutBuildList(RTDXF0, L"SEQEND", 0));
    EXPECT_EQ(acdbEntMake(end.get()), RTREJ);
}

TEST_F(EntityFunctions, BlockDefinitionAndInsertWithAttributes) {
    const double origin[3] = {0, 0, 0};
    RbPtr block(acutBuildList(RTDXF0, L"BLOCK", 2, L"C201-1", 70, 2, 10, origin, 0));
    ASSERT_EQ(acdbEntMake(block.get()), RTNORM);
    RbPtr circle(acutBuildList(RTDXF0, L"CIRCLE", 10, origin, 40, 5.0, 0));
    ASSERT_EQ(acdbEntMake(circle.get()), RTNORM);
    RbPtr attdef(acutBuildList(RTDXF0, L"ATTDEF", 10, origin, 40, 2.5, 1, L"", 2, L"F-LL", 3,
                               L"Flow", 70, 0, 0));
    ASSERT_EQ(acdbEntMake(attdef.get()), RTNORM);
    RbPtr endblk(acutBuildList(RTDXF0, L"ENDBLK", 0));
    ASSERT_EQ(acdbEntMake(endblk.get()), RTNORM);

    RbPtr entry(acdbTblSearch(L"BLOCK", L"c201-1", 0));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(text(find(entry.get(), 2)), L"C201-1");
    const resbuf* firstEntity = find(entry.get(), -2);
    ASSERT_NE(firstEntity, nullptr);
    EXPECT_EQ(text(find(get(firstEntity->resval.rlname).get(), 0)), L"CIRCLE");
    ads_name inBlock;
    ASSERT_EQ(acdbEntNext(firstEntity->resval.rlname, inBlock), RTNORM);
    EXPECT_EQ(text(find(get(inBlock).get(), 0)), L"ATTDEF");
    EXPECT_EQ(acdbEntDel(inBlock), RTERROR) << "entities of a definition stay";

    const double at[3] = {100, 50, 0};
    RbPtr insert(acutBuildList(RTDXF0, L"INSERT", 2, L"C201-1", 10, at, 66, 1, 0));
    ASSERT_EQ(acdbEntMake(insert.get()), RTNORM);
    RbPtr attrib(acutBuildList(RTDXF0, L"ATTRIB", 10, at, 40, 2.5, 1, L"1200", 2, L"F-LL", 70, 0, 0));
    ASSERT_EQ(acdbEntMake(attrib.get()), RTNORM);
    RbPtr seqend(acutBuildList(RTDXF0, L"SEQEND", 0));
    ASSERT_EQ(acdbEntMake(seqend.get()), RTNORM);
    ads_name ins;
    last(ins);
    EXPECT_EQ(text(find(get(ins).get(), 0)), L"INSERT");
    ads_name att;
    ASSERT_EQ(acdbEntNext(ins, att), RTNORM);
    RbPtr a = get(att);
    EXPECT_EQ(text(find(a.get(), 1)), L"1200");
    EXPECT_TRUE(acdbNameEqual(find(a.get(), 330)->resval.rlname, ins)) << "an attribute is owned by its insert";

    RbPtr missing(acutBuildList(RTDXF0, L"INSERT", 2, L"NOBLOCK", 10, at, 0));
    EXPECT_EQ(acdbEntMake(missing.get()), RTREJ);
}

TEST_F(EntityFunctions, RegAppRefusesDuplicatesAndBadNames) {
    EXPECT_EQ(acdbRegApp(L"K_DUCT_SIZE"), RTNORM);
    EXPECT_EQ(acdbRegApp(L"k_duct_size"), RTERROR);
    EXPECT_EQ(errnoValue(), 53);
    EXPECT_EQ(acdbRegApp(L"ACAD"), RTERROR) << "every drawing has ACAD";
    EXPECT_EQ(acdbRegApp(L"HAS SPACE"), RTERROR);
    EXPECT_EQ(acdbRegApp(L"A234567890123456789012345678901"), RTNORM);   // 31 characters
    EXPECT_EQ(acdbRegApp(L"B2345678901234567890123456789012"), RTERROR);  // 32
}

TEST_F(EntityFunctions, TblSearchIgnoresCaseAndTblNextWalks) {
    RbPtr style(acdbTblSearch(L"style", L"STANDARD", 0));
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(text(style.get()), L"STYLE");
    EXPECT_EQ(text(find(style.get(), 2)), L"Standard");
    EXPECT_EQ(find(style.get(), 5), nullptr) << "entries come without handles";
    EXPECT_EQ(find(style.get(), 100), nullptr) << "and without subclass markers";
    EXPECT_EQ(acdbTblSearch(L"LAYER", L"NOSUCH", 0), nullptr);
    EXPECT_EQ(acdbTblSearch(L"WIDGETS", L"0", 0), nullptr);
    EXPECT_EQ(errnoValue(), 18);
    RbPtr layer(acdbTblSearch(L"LAYER", L"0", 0));
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(find(layer.get(), 62)->resval.rint, 7);
    EXPECT_EQ(text(find(layer.get(), 6)), L"Continuous");

    makeLine(kA, kB, L"SECOND");
    std::vector<std::wstring> names;
    for (RbPtr e(acdbTblNext(L"LAYER", 1)); e; e.reset(acdbTblNext(L"LAYER", 0)))
        names.push_back(text(find(e.get(), 2)));
    EXPECT_EQ(names, (std::vector<std::wstring>{L"0", L"SECOND"}));
    RbPtr found(acdbTblSearch(L"LAYER", L"0", 1));
    RbPtr after(acdbTblNext(L"LAYER", 0));
    ASSERT_NE(after, nullptr);
    EXPECT_EQ(text(find(after.get(), 2)), L"SECOND") << "setnext continues after the entry found";
}

}  // namespace
}  // namespace dbtest

namespace dbtest {
namespace {

TEST_F(EntityFunctions, AnglesAreRadiansInListsAndDegreesInTheFile) {
    const double c[3] = {0, 0, 0};
    host::RbPtr arc(acutBuildList(RTDXF0, L"ARC", 10, c, 40, 1.0, 50, 0.7853981633974483, 51,
                                  3.141592653589793, 0));
    ASSERT_EQ(acdbEntMake(arc.get()), RTNORM);
    ads_name e;
    last(e);
    host::RbPtr list = get(e);
    EXPECT_DOUBLE_EQ(find(list.get(), 50)->resval.rreal, 0.7853981633974483);
    std::string file = db().dxfText();
    EXPECT_NE(file.find("AcDbArc\r\n 50\r\n45.0\r\n 51\r\n180.0\r\n"), std::string::npos);
    // Writing the list back unchanged keeps the file's text of every group.
    ASSERT_EQ(acdbEntMod(list.get()), RTNORM);
    EXPECT_EQ(db().dxfText(), file);
    host::RbPtr style(acdbTblSearch(L"STYLE", L"Standard", 0));
    EXPECT_EQ(find(style.get(), 50)->resval.rreal, 0.0);
}

}  // namespace
}  // namespace dbtest

namespace dbtest {
namespace {

TEST_F(EntityFunctions, AnonymousBlocksAreNamedAndLayoutBlocksAreNotListed) {
    const double o[3] = {0, 0, 0};
    for (int i = 0; i < 2; ++i) {
        host::RbPtr block(acutBuildList(RTDXF0, L"BLOCK", 2, L"*U", 70, 1, 10, o, 0));
        ASSERT_EQ(acdbEntMake(block.get()), RTNORM);
        host::RbPtr circle(acutBuildList(RTDXF0, L"CIRCLE", 10, o, 40, 1.0 + i, 0));
        ASSERT_EQ(acdbEntMake(circle.get()), RTNORM);
        host::RbPtr end(acutBuildList(RTDXF0, L"ENDBLK", 0));
        ASSERT_EQ(acdbEntMake(end.get()), RTNORM);
    }
    std::vector<std::wstring> names;
    for (host::RbPtr e(acdbTblNext(L"BLOCK", 1)); e; e.reset(acdbTblNext(L"BLOCK", 0)))
        names.push_back(find(e.get(), 2)->resval.rstring);
    EXPECT_EQ(names, (std::vector<std::wstring>{L"*U1", L"*U2"}));

    // A definition of an existing name replaces the old one.
    host::RbPtr again(acutBuildList(RTDXF0, L"BLOCK", 2, L"*U1", 70, 0, 10, o, 0));
    ASSERT_EQ(acdbEntMake(again.get()), RTNORM);
    host::RbPtr point(acutBuildList(RTDXF0, L"POINT", 10, o, 0));
    ASSERT_EQ(acdbEntMake(point.get()), RTNORM);
    host::RbPtr end(acutBuildList(RTDXF0, L"ENDBLK", 0));
    ASSERT_EQ(acdbEntMake(end.get()), RTNORM);
    host::RbPtr entry(acdbTblSearch(L"BLOCK", L"*u1", 0));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(std::wstring(find(get(find(entry.get(), -2)->resval.rlname).get(), 0)->resval.rstring), L"POINT");
    std::string file = db().dxfText();
    EXPECT_EQ(file.find("\r\nCIRCLE\r\n  5\r\n"), file.rfind("\r\nCIRCLE\r\n  5\r\n")) << "one circle left";
}

TEST_F(EntityFunctions, EntModOfATableEntry) {
    host::RbPtr entry(acdbTblSearch(L"LAYER", L"0", 0));
    ASSERT_NE(entry, nullptr);
    // The layer record's own entity name comes from the BLOCK_RECORD walk: by handle here.
    uint32_t layer = db().findEntry("LAYER", L"0");
    ads_name e;
    db().nameOf(layer, e);
    host::RbPtr change(acutBuildList(-1, e, 62, 5, 0));
    ASSERT_EQ(acdbEntMod(change.get()), RTNORM);
    entry.reset(acdbTblSearch(L"LAYER", L"0", 0));
    EXPECT_EQ(find(entry.get(), 62)->resval.rint, 5);
}

}  // namespace
}  // namespace dbtest
