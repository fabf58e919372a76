// The DCL language: tokens, grammar, inheritance and the standard prototypes.
#include <gtest/gtest.h>

#include "host/dcl/audit.h"
#include "host/dcl/base_prototypes.h"
#include "host/dcl/expander.h"
#include "host/dcl/library.h"
#include "host/dcl/parser.h"
#include "host/text.h"

namespace host::dcl {
namespace {

const std::filesystem::path kFile = "/virtual/test.dcl";

ParsedFile parseOk(std::wstring_view text) {
    ParseResult r = parseDcl(text, kFile);
    EXPECT_FALSE(r.error.has_value()) << (r.error ? toUtf8(r.error->message) : "");
    return std::move(r.file);
}

SyntaxError parseFails(std::wstring_view text) {
    ParseResult r = parseDcl(text, kFile);
    EXPECT_TRUE(r.error.has_value());
    return r.error.value_or(SyntaxError{-1, L"no error"});
}

const AttrValue* findAttr(const Body& body, std::wstring_view name) {
    for (const auto& a : body.attributes)
        if (a.name == name) return &a.value;
    return nullptr;
}

TEST(DclParser, CommentsOfBothKindsAreSkippedButNotInsideStrings) {
    ParsedFile f = parseOk(
        L"// line comment : dialog { }\n"
        L"/* block comment\n   over lines : x { } */\n"
        L"a : dialog { /* inline */ label = \"http://x/*y*/\"; // tail\n}\n");
    ASSERT_EQ(f.definitions.size(), 1u);
    EXPECT_EQ(f.definitions[0].name, L"a");
    EXPECT_EQ(f.definitions[0].line, 4);
    EXPECT_EQ(findAttr(f.definitions[0].body, L"label")->text, L"http://x/*y*/");
}

TEST(DclParser, StringEscapes) {
    ParsedFile f = parseOk(LR"(a : text { label = "q\"b\\n\nt\tz\q"; })");
    const AttrValue* v = findAttr(f.definitions[0].body, L"label");
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->type, AttrValue::Type::String);
    // \" \\ \n \t are escapes; any other pair stays as written
    EXPECT_EQ(v->text, L"q\"b\\n\nt\tz\\q");
}

TEST(DclParser, NumbersAndReservedWords) {
    ParsedFile f = parseOk(
        L"a : image { width = 10; height = 2.5; color = -2; min_value = +3; aspect_ratio = 0.66;\n"
        L"  color2 = 001; fixed_width = true; alignment = centered; layout = vertical; c = dialog_line; }");
    const Body& b = f.definitions[0].body;
    EXPECT_EQ(findAttr(b, L"width")->type, AttrValue::Type::Integer);
    EXPECT_EQ(findAttr(b, L"height")->type, AttrValue::Type::Real);
    EXPECT_EQ(findAttr(b, L"height")->text, L"2.5");
    EXPECT_EQ(findAttr(b, L"color")->text, L"-2");
    EXPECT_EQ(findAttr(b, L"min_value")->text, L"+3");
    EXPECT_EQ(findAttr(b, L"color2")->text, L"001");
    EXPECT_EQ(findAttr(b, L"fixed_width")->type, AttrValue::Type::Word);
    EXPECT_EQ(findAttr(b, L"alignment")->text, L"centered");
    EXPECT_EQ(findAttr(b, L"c")->text, L"dialog_line");
}

TEST(DclParser, RealWithoutLeadingDigitIsRejected) {
    for (const wchar_t* text : {L"a : image {\n width = .5; }", L"a : image {\n width = -.5; }"}) {
        SyntaxError e = parseFails(text);
        EXPECT_EQ(e.line, 2);
        EXPECT_EQ(e.message, L"a real number needs a digit before the decimal point");
    }
    EXPECT_EQ(parseFails(L"a : image { width = 1.; }").message, L"a digit must follow the decimal point");
}

TEST(DclParser, WordsAreCaseSensitiveAndMustBeReserved) {
    SyntaxError e = parseFails(L"a : button {\n\n is_default = True; }");
    EXPECT_EQ(e.line, 3);
    EXPECT_EQ(e.message, L"'True' is not a valid value for attribute 'is_default'");
    EXPECT_EQ(parseFails(L"a : button { width = wide; }").message,
              L"'wide' is not a valid value for attribute 'width'");
}

TEST(DclParser, SyntaxErrorsNameWhatWasFound) {
    EXPECT_EQ(parseFails(L"a : dialog {\n label = \"x\"\n ok_only;\n}").message,
              L"expected ';' after the value of attribute 'label', found name 'ok_only'");
    SyntaxError open = parseFails(L"a : dialog {\n ok_only;\n");
    EXPECT_EQ(open.message, L"a tile body is not closed: '}' missing");
    EXPECT_EQ(open.line, 3);
    EXPECT_EQ(parseFails(L": dialog { }").message, L"a tile at the top level needs a name before ':'");
    EXPECT_EQ(parseFails(L"a dialog { }").message, L"expected ':' after the tile name 'a', found name 'dialog'");
    EXPECT_EQ(parseFails(L"a : dialog { label = ; }").message,
              L"expected a value for attribute 'label', found ';'");
    EXPECT_EQ(parseFails(L"a : dialog { label = \"x\n\"; }").message, L"string not closed on its line");
    EXPECT_EQ(parseFails(L"a : b { }\n/* open").line, 2);
    EXPECT_EQ(parseFails(L"a : b { x = 1; } #").message, L"unexpected character '#'");
    EXPECT_EQ(parseFails(L"a : b { ok_only }").message, L"expected '=', ';' or ':' after 'ok_only', found '}'");
}

TEST(DclParser, ReferencesInstancesAndNestedDefinitions) {
    ParsedFile f = parseOk(
        L"d : dialog {\n"
        L"  ok_cancel;\n"
        L"  : row { : button { key = \"b\"; } }\n"
        L"  inner : text : text_part { label = \"n\"; }\n"
        L"}\n");
    const auto& children = f.definitions[0].body.children;
    ASSERT_EQ(children.size(), 3u);
    EXPECT_EQ(children[0].kind, Item::Kind::Reference);
    EXPECT_EQ(children[0].prototypes, std::vector<std::wstring>{L"ok_cancel"});
    EXPECT_EQ(children[1].kind, Item::Kind::Instance);
    EXPECT_EQ(children[1].line, 3);
    ASSERT_EQ(children[1].body.children.size(), 1u);
    EXPECT_EQ(children[2].kind, Item::Kind::Instance);  // a nested definition is an instance
    EXPECT_EQ(children[2].prototypes, (std::vector<std::wstring>{L"text", L"text_part"}));
}

TEST(DclParser, IncludeWithOrWithoutSemicolon) {
    ParsedFile f = parseOk(L"@include \"a.dcl\"\n@include \"b\";\nx : text { }");
    ASSERT_EQ(f.includes.size(), 2u);
    EXPECT_EQ(f.includes[0].name, L"a.dcl");
    EXPECT_EQ(f.includes[1].name, L"b");
    EXPECT_EQ(f.includes[1].line, 2);
    EXPECT_EQ(parseFails(L"@include dcl_file;").message,
              L"expected a file name in quotes after @include, found name 'dcl_file'");
    EXPECT_EQ(parseFails(L"@import \"a\"").message, L"unknown directive after '@'");
}

// Expansion of parsed text against the base definitions.
struct Expansion {
    ParsedFile file;
    Library library;
    std::vector<Problem> problems;

    explicit Expansion(std::wstring_view text) : file(parseOk(text)) {
        for (const auto& def : file.definitions) library.add(def);
    }
    std::optional<Tile> build(std::wstring_view name) {
        if (!expander) expander.emplace(library, problems);  // one for the file, as a load uses
        return expander->build(*library.find(std::wstring(name)));
    }
    std::optional<Expander> expander;
};

const Tile* findKey(const Tile& t, std::wstring_view key) {
    if (t.key() == key) return &t;
    for (const auto& c : t.children)
        if (const Tile* f = findKey(c, key)) return f;
    return nullptr;
}

TEST(DclExpansion, LeftMostParentWinsAndInstanceAttributesOverride) {
    Expansion x(
        L"big : text { width = 30; label = \"big\"; }\n"
        L"red : text { width = 10; label = \"red\"; color = red; }\n"
        L"both : big : red { }\n"
        L"d : dialog { : both { key = \"t\"; label = \"mine\"; } : both { key = \"u\"; } }\n");
    auto d = x.build(L"d");
    ASSERT_TRUE(d);
    EXPECT_EQ(d->kind, TileKind::Dialog);
    const Tile* t = findKey(*d, L"t");
    const Tile* u = findKey(*d, L"u");
    ASSERT_TRUE(t && u);
    EXPECT_EQ(t->kind, TileKind::Text);
    EXPECT_EQ(t->attr(L"width"), L"30");   // from big, the left-most parent
    EXPECT_EQ(t->attr(L"color"), L"red");  // only red has it
    EXPECT_EQ(t->attr(L"label"), L"mine"); // the instance's own
    EXPECT_EQ(u->attr(L"label"), L"big");  // each instance is changed on its own
    EXPECT_TRUE(t->flag(L"fixed_height"));  // from the text primitive
}

TEST(DclExpansion, KindComesFromTheLeftMostParent) {
    Expansion x(L"odd : toggle : button { key = \"k\"; }\n");
    auto t = x.build(L"odd");
    ASSERT_TRUE(t);
    EXPECT_EQ(t->kind, TileKind::Toggle);
}

TEST(DclExpansion, UndefinedAndCircularAreReportedAtTheirLine) {
    Expansion x(
        L"a : b { }\n"
        L"b : a { }\n"
        L"d : dialog {\n  : nowhere { }\n}\n");
    EXPECT_FALSE(x.build(L"a"));
    EXPECT_FALSE(x.build(L"b"));  // already known to fail: no second message
    EXPECT_FALSE(x.build(L"d"));
    ASSERT_EQ(x.problems.size(), 2u);
    EXPECT_EQ(x.problems[0].line, 2);
    EXPECT_EQ(x.problems[0].message, L"circular definition of tile 'a'");
    EXPECT_EQ(x.problems[1].line, 4);
    EXPECT_EQ(x.problems[1].message, L"undefined tile 'nowhere'");
}

TEST(DclExpansion, SubassemblyCannotBeChanged) {
    Expansion x(L"d : dialog {\n  : ok_cancel { label = \"x\"; }\n}\ne : dialog { : ok_cancel { } ok_cancel; }\n");
    EXPECT_FALSE(x.build(L"d"));
    ASSERT_EQ(x.problems.size(), 1u);
    EXPECT_EQ(x.problems[0].line, 2);
    EXPECT_TRUE(x.build(L"e"));  // an empty body changes nothing
}

TEST(DclBase, StandardNamesAreDefined) {
    Library lib;
    for (const wchar_t* name :
         {L"ok_only", L"ok_cancel", L"ok_cancel_help", L"ok_cancel_help_info", L"ok_cancel_help_errtile",
          L"ok_cancel_err", L"errtile", L"spacer", L"spacer_0", L"spacer_1", L"default_button",
          L"retirement_button", L"image_block", L"icon_image", L"edit12_box", L"edit32_box",
          L"default_dcl_settings", L"button", L"edit_box", L"text", L"text_part", L"toggle", L"radio_button",
          L"radio_row", L"radio_column", L"boxed_row", L"boxed_column", L"boxed_radio_row",
          L"boxed_radio_column", L"row", L"column", L"concatenation", L"paragraph", L"list_box",
          L"popup_list", L"image", L"image_button", L"slider", L"dialog", L"cluster", L"tile", L"swatch",
          L"text_25", L"ok_button", L"cancel_button", L"help_button", L"info_button"})
        EXPECT_NE(lib.find(name), nullptr) << toUtf8(name);
}

TEST(DclBase, ExitButtonsHaveTheirKeysAndLabels) {
    Expansion x(L"d : dialog { ok_cancel_help_info; errtile; }\n");
    auto d = x.build(L"d");
    ASSERT_TRUE(d);
    struct Expect { const wchar_t *key, *label; bool isDefault, isCancel; };
    for (auto e : {Expect{L"accept", L"OK", true, false}, Expect{L"cancel", L"Cancel", false, true},
                   Expect{L"help", L"&Help", false, false}, Expect{L"info", L"&Info...", false, false}}) {
        const Tile* t = findKey(*d, e.key);
        ASSERT_NE(t, nullptr) << toUtf8(e.key);
        EXPECT_EQ(t->kind, TileKind::Button);
        EXPECT_EQ(t->attr(L"label"), e.label);
        EXPECT_EQ(t->flag(L"is_default"), e.isDefault);
        EXPECT_EQ(t->flag(L"is_cancel"), e.isCancel);
        EXPECT_EQ(t->attr(L"width"), L"8");  // retirement_button
    }
    const Tile* err = findKey(*d, L"error");
    ASSERT_NE(err, nullptr);
    EXPECT_EQ(err->kind, TileKind::Text);
    EXPECT_TRUE(err->flag(L"is_error_tile"));
    EXPECT_EQ(err->attr(L"width"), L"35");
}

TEST(DclBase, OkOnlyIsAlsoTheCancelButton) {
    Expansion x(L"d : dialog { ok_only; }\n");
    auto d = x.build(L"d");
    ASSERT_TRUE(d);
    const Tile* ok = findKey(*d, L"accept");
    ASSERT_NE(ok, nullptr);
    EXPECT_TRUE(ok->flag(L"is_cancel"));
    EXPECT_TRUE(ok->flag(L"is_default"));
}

TEST(DclBase, ListBoxAndDialogDefaults) {
    Expansion x(L"d : dialog { : list_box { key = \"l\"; } : edit32_box { key = \"e\"; } }\n");
    auto d = x.build(L"d");
    ASSERT_TRUE(d);
    EXPECT_EQ(d->attr(L"layout"), L"vertical");
    EXPECT_EQ(findKey(*d, L"l")->attr(L"height"), L"10");
    EXPECT_EQ(findKey(*d, L"e")->attr(L"edit_limit"), L"2048");
    EXPECT_EQ(findKey(*d, L"e")->kind, TileKind::EditBox);
}


std::vector<std::wstring> auditMessages(std::wstring_view text) {
    Expansion x(text);
    auto d = x.build(L"d");
    EXPECT_TRUE(d);
    std::vector<std::wstring> out;
    if (d) auditDialog(*d, x.problems);
    for (const auto& p : x.problems) out.push_back(std::to_wstring(p.line) + L": " + p.message);
    return out;
}

TEST(DclAudit, ActiveTilesNeedKeys) {
    EXPECT_EQ(auditMessages(L"my_button : button { label = \"x\"; }\n"
                            L"d : dialog {\n : my_button { }\n : my_button { key = \"k\"; }\n : text { }\n"
                            L" : slider { }\n ok_cancel; }\n"),
              (std::vector<std::wstring>{L"3: active tile 'my_button' (button) has no key",
                                         L"6: active tile 'slider' has no key"}));
}

TEST(DclAudit, KeysAreUniqueAndRadioButtonsSitInRadioClusters) {
    EXPECT_EQ(auditMessages(L"d : dialog {\n"
                            L" : radio_row { key = \"r\"; : radio_button { key = \"a\"; } }\n"
                            L" : boxed_row { : radio_button { key = \"b\"; } }\n"
                            L" : toggle { key = \"a\"; }\n"
                            L" ok_only; ok_cancel; }\n"),
              (std::vector<std::wstring>{L"3: radio_button \"b\" is not inside a radio_row or radio_column",
                                         L"4: key \"a\" is used more than once in dialog 'd'",
                                         L"1: key \"accept\" is used more than once in dialog 'd'"}));
}

TEST(DclAudit, StandardSubassembliesPass) {
    EXPECT_TRUE(auditMessages(L"d : dialog { : boxed_radio_column { key = \"c\"; : radio_button { key = \"x\"; } }\n"
                              L" : icon_image { key = \"i\"; } image_block; ok_cancel_help_errtile; }\n")
                    .empty());
}

}  // namespace
}  // namespace host::dcl
