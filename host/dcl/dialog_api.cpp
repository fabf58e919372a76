// The DCL functions of the host interface that load files, make, run and end dialogs, and
// read and change tiles.
#include "adsdlg.h"
#include "host/boundary.h"
#include "host/dcl/buffer.h"
#include "host/dcl/loader.h"
#include "host/dcl/runtime.h"
#include "host/dcl/tile_values.h"

using host::dcl::Runtime;

namespace {

// The dialog and tile index named by HDLG and KEY; dialog null or index -1 when none.
struct Target {
    host::dcl::Dialog* dialog = nullptr;
    int index = -1;
    explicit operator bool() const { return dialog && index >= 0; }
};

Target target(ads_hdlg hdlg, const ACHAR* key) {
    Runtime& rt = Runtime::instance();
    Target t;
    t.dialog = rt.dialog(hdlg);
    t.index = rt.findTile(t.dialog, key);
    return t;
}

bool sessionOpen() {
    const Runtime& rt = Runtime::instance();
    return rt.list.has_value() || rt.image.has_value();
}

}  // namespace

extern "C" int ads_load_dialog(const ACHAR* dclfile, int* dcl_id) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (dcl_id) *dcl_id = -1;
        if (!dclfile || !dcl_id) return RTERROR;
        auto outcome = host::dcl::loadDcl(dclfile);
        if (!outcome.dcl) {
            host::dcl::reportProblems(outcome.problems);
            return RTERROR;
        }
        *dcl_id = Runtime::instance().addFile(std::move(outcome.dcl));
        return RTNORM;
    });
}

extern "C" int ads_unload_dialog(int dcl_id) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Runtime::instance().removeFile(dcl_id);
        return RTNORM;
    });
}

extern "C" int ads_new_positioned_dialog(const ACHAR* dlgname, int dcl_id, CLIENTFUNC def_callback, int x, int y,
                                         ads_hdlg* hdlg) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (hdlg) *hdlg = BAD_DIALOG;
        Runtime& rt = Runtime::instance();
        const host::dcl::LoadedDcl* file = rt.file(dcl_id);
        if (!dlgname || !hdlg || !file) return RTERROR;
        host::dcl::Dialog* dialog = rt.create(dlgname, *file, def_callback, x, y);
        if (!dialog) return RTERROR;
        *hdlg = dialog->handle();
        return RTNORM;
    });
}

extern "C" int ads_new_dialog(const ACHAR* dlgname, int dcl_id, CLIENTFUNC def_callback, ads_hdlg* hdlg) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return ads_new_positioned_dialog(dlgname, dcl_id, def_callback, -1, -1, hdlg);
    });
}

extern "C" int ads_start_dialog(ads_hdlg hdlg, int* status) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Runtime& rt = Runtime::instance();
        host::dcl::Dialog* dialog = rt.dialog(hdlg);
        if (!dialog || dialog->started) return RTERROR;
        int result = rt.run(*dialog);
        if (status) *status = result;
        return RTNORM;
    });
}

extern "C" int ads_term_dialog(void) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Runtime::instance().terminateAll();
        return RTNORM;
    });
}

extern "C" int ads_done_positioned_dialog(ads_hdlg hdlg, int status, int* x_result, int* y_result) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Runtime& rt = Runtime::instance();
        host::dcl::Dialog* dialog = rt.dialog(hdlg);
        if (!dialog) return RTERROR;
        rt.finish(*dialog, status);
        if (x_result) *x_result = dialog->x;
        if (y_result) *y_result = dialog->y;
        return RTNORM;
    });
}

extern "C" int ads_done_dialog(ads_hdlg hdlg, int status) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        return ads_done_positioned_dialog(hdlg, status, nullptr, nullptr);
    });
}

extern "C" int ads_action_tile(ads_hdlg hdlg, const ACHAR* key, CLIENTFUNC tilefunc) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Target t = target(hdlg, key);
        if (!t) return RTERROR;
        t.dialog->tile(t.index).callback = tilefunc;
        return RTNORM;
    });
}

extern "C" int ads_client_data_tile(ads_hdlg hdlg, const ACHAR* key, void* clientdata) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Target t = target(hdlg, key);
        if (!t) return RTERROR;
        t.dialog->tile(t.index).clientData = clientdata;
        return RTNORM;
    });
}

extern "C" int ads_set_tile(ads_hdlg hdlg, const ACHAR* key, const ACHAR* value) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (sessionOpen()) return RTERROR;  // not allowed while a list or an image is open
        Target t = target(hdlg, key);
        if (!t) return RTERROR;
        host::dcl::setValue(*t.dialog, t.index, value ? value : L"");
        return RTNORM;
    });
}

extern "C" int ads_get_tile(ads_hdlg hdlg, const ACHAR* key, ACHAR* value, int maxlen) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (value && maxlen > 0) value[0] = L'\0';
        Target t = target(hdlg, key);
        if (!t) return RTERROR;
        return host::dcl::copyToBuffer(t.dialog->tile(t.index).value, value, maxlen);
    });
}

static int declaredAttribute(const host::dcl::RuntimeTile& tile, const ACHAR* attr, ACHAR* value, int len) {
    if (value && len > 0) value[0] = L'\0';
    if (!attr || !tile.source->has(attr)) return RTERROR;
    return host::dcl::copyToBuffer(tile.source->attr(attr), value, len);
}

extern "C" int ads_get_attr(ads_hdlg hdlg, const ACHAR* key, ACHAR* attr, ACHAR* value, int len) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Target t = target(hdlg, key);
        if (!t) {
            if (value && len > 0) value[0] = L'\0';
            return RTERROR;
        }
        return declaredAttribute(t.dialog->tile(t.index), attr, value, len);
    });
}

extern "C" int ads_get_attr_string(ads_htile tile, ACHAR* attr, ACHAR* value, int len) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        host::dcl::TileRef ref = Runtime::instance().tile(tile);
        if (!ref.dialog) {
            if (value && len > 0) value[0] = L'\0';
            return RTERROR;
        }
        return declaredAttribute(ref.dialog->tile(ref.index), attr, value, len);
    });
}

extern "C" int ads_mode_tile(ads_hdlg hdlg, const ACHAR* key, short mode) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        Target t = target(hdlg, key);
        if (!t) return RTERROR;
        host::dcl::RuntimeTile& tile = t.dialog->tile(t.index);
        switch (mode) {
        case MODE_ENABLE: tile.enabled = true; return RTNORM;
        case MODE_DISABLE: tile.enabled = false; return RTNORM;
        case MODE_SETFOCUS: t.dialog->focus = tile.key; return RTNORM;
        case MODE_SETSEL: tile.selected = true; return RTNORM;
        case MODE_FLIP: tile.highlighted = !tile.highlighted; return RTNORM;
        default: return RTERROR;
        }
    });
}
