#include "host/dcl/base_prototypes.h"

#include <cstdio>
#include <cstdlib>

#include "host/dcl/parser.h"

namespace host::dcl {
namespace {

// Primitives derived from `tile`, and the standard prototypes. English labels; '&' marks the
// mnemonic as on the exit buttons of the editor.
constexpr const wchar_t* kBaseText = LR"DCL(
text         : tile { fixed_height = true; }
image        : tile { }
button       : tile { fixed_height = true; is_tab_stop = true; }
image_button : button { is_tab_stop = true; }
toggle       : tile { fixed_height = true; is_tab_stop = true; }
radio_button : tile { fixed_height = true; is_tab_stop = true; }
list_box     : tile { is_tab_stop = true; height = 10; width = 10; }
edit_box     : tile { fixed_height = true; is_tab_stop = true; }
popup_list   : tile { is_tab_stop = true; fixed_height = true; }
slider       : tile { is_tab_stop = true; }
spacer       : tile { }

row                : cluster { horizontal_margin = none; vertical_margin = none; children_alignment = centered; }
column             : cluster { layout = vertical; horizontal_margin = none; vertical_margin = none; }
boxed_row          : cluster { label = " "; boxed = true; children_alignment = centered; }
boxed_column       : cluster { layout = vertical; label = " "; boxed = true; }
radio_row          : radio_cluster { horizontal_margin = none; vertical_margin = none; children_alignment = centered; }
radio_column       : radio_cluster { layout = vertical; horizontal_margin = none; vertical_margin = none; }
boxed_radio_row    : radio_cluster { label = " "; boxed = true; children_alignment = centered; }
boxed_radio_column : radio_cluster { layout = vertical; label = " "; boxed = true; }
concatenation      : cluster { fixed_width = true; fixed_height = true; children_alignment = centered; }
paragraph          : cluster { layout = vertical; fixed_height = true; }

text_part : text { horizontal_margin = none; vertical_margin = none; }
text_25   : text { width = 25; }
spacer_0  : spacer { height = 0; width = 0; horizontal_margin = none; vertical_margin = none; }
spacer_1  : spacer { height = 1; width = 1; horizontal_margin = none; vertical_margin = none; }

default_button    : button { is_default = true; }
retirement_button : button { fixed_width = true; width = 8; alignment = centered; }
ok_button         : retirement_button { label = "OK"; key = "accept"; is_default = true; }
cancel_button     : retirement_button { label = "Cancel"; key = "cancel"; is_cancel = true; }
help_button       : retirement_button { label = "&Help"; key = "help"; is_help = true; }
info_button       : retirement_button { label = "&Info..."; key = "info"; }

ok_only : column {
    fixed_width = true;
    alignment = centered;
    : ok_button { is_cancel = true; }
}
ok_cancel : column {
    : row { fixed_width = true; alignment = centered;
        ok_button; : spacer { width = 2; } cancel_button;
    }
}
ok_cancel_help : column {
    : row { fixed_width = true; alignment = centered;
        ok_button; : spacer { width = 2; } cancel_button; : spacer { width = 2; } help_button;
    }
}
ok_cancel_help_info : column {
    : row { fixed_width = true; alignment = centered;
        ok_button; : spacer { width = 2; } cancel_button; : spacer { width = 2; } help_button;
        : spacer { width = 2; } info_button;
    }
}
errtile : text { label = ""; key = "error"; width = 35; is_error_tile = true; }
ok_cancel_help_errtile : column { ok_cancel_help; errtile; }
ok_cancel_err          : column { ok_cancel; errtile; }

default_dcl_settings : tile { audit_level = 1; }
image_block : image { key = "show_image"; height = 1; width = 1; }
icon_image  : image_button { color = 0; width = 12; aspect_ratio = 0.66; allow_accept = true;
                             fixed_height = true; fixed_width = true; }
edit12_box  : edit_box { edit_width = 12; edit_limit = 148; }
edit32_box  : edit_box { edit_width = 32; edit_limit = 2048; }
swatch      : image_button { horizontal_margin = none; vertical_margin = none; fixed_height = true;
                             fixed_width = true; height = 1.5; width = 3; allow_accept = true; }
)DCL";

struct Primitive {
    const wchar_t* name;
    TileKind kind;
};

constexpr Primitive kPrimitives[] = {
    {L"dialog", TileKind::Dialog},         {L"cluster", TileKind::Cluster},
    {L"radio_cluster", TileKind::RadioCluster}, {L"tile", TileKind::Tile},
    {L"text", TileKind::Text},             {L"image", TileKind::Image},
    {L"button", TileKind::Button},         {L"image_button", TileKind::ImageButton},
    {L"toggle", TileKind::Toggle},         {L"radio_button", TileKind::RadioButton},
    {L"list_box", TileKind::ListBox},      {L"edit_box", TileKind::EditBox},
    {L"popup_list", TileKind::PopupList},  {L"slider", TileKind::Slider},
    {L"spacer", TileKind::Spacer},
};

Definition root(const wchar_t* name, std::vector<std::pair<const wchar_t*, const wchar_t*>> words) {
    Definition def;
    def.name = name;
    for (auto& [attr, word] : words)
        def.body.attributes.push_back(Attribute{attr, AttrValue{AttrValue::Type::Word, word}, 0});
    return def;
}

std::vector<Definition> build() {
    std::vector<Definition> defs;
    defs.push_back(root(L"dialog", {{L"layout", L"vertical"}, {L"is_enabled", L"false"}}));
    defs.push_back(root(L"cluster", {{L"layout", L"horizontal"}}));
    defs.push_back(root(L"radio_cluster", {{L"layout", L"horizontal"}, {L"is_enabled", L"true"}}));
    defs.push_back(root(L"tile", {{L"layout", L"horizontal"}, {L"is_enabled", L"true"}}));
    ParseResult parsed = parseDcl(kBaseText, {});
    if (parsed.error) {  // the host's own text: a fault here is a build mistake
        std::fprintf(stderr, "base DCL definitions do not parse (line %d)\n", parsed.error->line);
        std::abort();
    }
    for (auto& def : parsed.file.definitions) defs.push_back(std::move(def));
    return defs;
}

}  // namespace

const std::vector<Definition>& baseDefinitions() {
    static const std::vector<Definition> defs = build();
    return defs;
}

std::optional<TileKind> primitiveKind(const Definition& def) {
    if (!def.file.empty()) return std::nullopt;
    for (const auto& p : kPrimitives)
        if (def.name == p.name) return p.kind;
    return std::nullopt;
}

}  // namespace host::dcl
