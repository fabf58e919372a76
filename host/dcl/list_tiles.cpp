// Lists of list_box and popup_list tiles: start_list opens one for a new list, for appending
// or for changing one item; add_list adds or replaces items; end_list closes it.
#include "adsdlg.h"
#include "host/boundary.h"
#include "host/dcl/runtime.h"
#include "host/dcl/tile_values.h"

using host::dcl::Runtime;

namespace {

constexpr size_t kMaxListItems = 32768;

host::dcl::RuntimeTile* openListTile() {
    Runtime& rt = Runtime::instance();
    if (!rt.list) return nullptr;
    host::dcl::Dialog* dialog = rt.dialog(reinterpret_cast<ads_hdlg>(rt.list->dialog));
    return dialog ? &dialog->tile(rt.list->tile) : nullptr;
}

}  // namespace

extern "C" int ads_start_list(ads_hdlg hdlg, const ACHAR* key, short operation, short index) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Runtime& rt = Runtime::instance();
        host::dcl::Dialog* dialog = rt.dialog(hdlg);
        int tile = rt.findTile(dialog, key);
        if (tile < 0 || !host::dcl::isList(dialog->tile(tile).kind())) return RTERROR;
        if (operation != LIST_CHANGE && operation != LIST_APPEND && operation != LIST_NEW) return RTERROR;
        host::dcl::RuntimeTile& t = dialog->tile(tile);
        if (operation == LIST_CHANGE && (index < 0 || static_cast<size_t>(index) >= t.list.size())) return RTERROR;
        if (operation == LIST_NEW) {
            t.list.clear();
            t.value.clear();  // a new list starts with nothing selected
        }
        rt.list = host::dcl::ListSession{dialog->serial(), tile, operation, index};
        return RTNORM;
    });
}

extern "C" int ads_add_list(const ACHAR* item) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        host::dcl::RuntimeTile* t = openListTile();
        if (!t || !item) return RTERROR;
        const host::dcl::ListSession& session = *Runtime::instance().list;
        if (session.operation == LIST_CHANGE) {
            t->list[static_cast<size_t>(session.index)] = item;  // each call replaces the same item
            return RTNORM;
        }
        if (t->list.size() >= kMaxListItems) return RTERROR;
        t->list.emplace_back(item);
        return RTNORM;
    });
}

extern "C" int ads_end_list(void) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        host::dcl::RuntimeTile* t = openListTile();
        Runtime::instance().list.reset();
        if (!t) return RTERROR;
        host::dcl::fitListValue(*t);
        return RTNORM;
    });
}
