#include "host/render/pen.h"

#include <cstdlib>

#include "host/render/entry_groups.h"

namespace host::render {
namespace {

constexpr long long kByBlock = 0;
constexpr long long kByLayer = 256;
constexpr long long kWeightByLayer = -1;
constexpr long long kWeightByBlock = -2;
constexpr long long kLayerFrozen = 1;

struct LayerLook {
    bool visible = true;
    int colour = 7;
    long long lineweight = -3;
};

LayerLook layerLook(const db::Database& db, const db::GroupList& g) {
    LayerLook look;
    std::optional<db::GroupList> entry = namedEntry(db, "LAYER", g, 8, L"0");
    if (!entry) return look;
    const db::GroupList& layer = *entry;
    if (const db::Group* c = db::findCode(layer, 62)) {
        look.visible = c->integer >= 0;
        look.colour = static_cast<int>(std::llabs(c->integer));
    }
    if (const db::Group* f = db::findCode(layer, 70); f && (f->integer & kLayerFrozen)) look.visible = false;
    if (const db::Group* w = db::findCode(layer, 370)) look.lineweight = w->integer;
    return look;
}

}  // namespace

std::optional<Pen> entityPen(const db::Database& db, const db::GroupList& g, const std::optional<Pen>& outer) {
    LayerLook layer = layerLook(db, g);
    if (!layer.visible) return std::nullopt;
    Pen pen;
    const db::Group* c = db::findCode(g, 62);
    long long colour = c ? c->integer : kByLayer;
    if (colour == kByBlock) pen.colour = outer ? outer->colour : 7;
    else if (colour == kByLayer || colour < 0) pen.colour = layer.colour;
    else pen.colour = static_cast<int>(colour);

    const db::Group* w = db::findCode(g, 370);
    long long weight = w ? w->integer : kWeightByLayer;
    if (weight == kWeightByLayer) weight = layer.lineweight;
    if (weight == kWeightByBlock) weight = outer ? outer->lineweight : kDefaultLineweight;
    pen.lineweight = weight >= 0 ? static_cast<int>(weight) : kDefaultLineweight;
    return pen;
}

}  // namespace host::render
