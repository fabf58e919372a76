#include "host/db/entity_rules.h"

#include "host/db/api_support.h"
#include "host/db/sysvars.h"
#include "host/db/tables.h"

namespace host::db {

std::wstring currentLayer() {
    SysVars* vars = currentVariables();
    if (!vars) return L"0";
    const SysVarValue* v = vars->find(L"CLAYER");
    return v && !v->text.empty() ? v->text : L"0";
}

short checkProperties(Database& db, std::string_view type, const GroupList& groups) {
    for (const auto& g : groups) {
        switch (g.code) {
        case 8:  // made only once the whole change is accepted (makeNamedLayers)
            if (db.findEntry("LAYER", g.text) == kNone && !validSymbolName(g.text)) return kErrBadLayer;
            break;
        case 6:
            if (!isByName(g.text) && db.findEntry("LTYPE", g.text) == kNone) return kErrBadLinetype;
            break;
        case 62:
            if (g.integer < 0 || g.integer > 256) return kErrBadColor;
            break;
        case 7:
            if (type != "DIMENSION" && db.findEntry("STYLE", g.text) == kNone) return kErrBadStyle;
            break;
        case 2:
            if (type == "INSERT" && db.findBlock(g.text) == kNone) return kErrBadBlockName;
            break;
        case 210:
            if (g.point[0] == 0.0 && g.point[1] == 0.0 && g.point[2] == 0.0) return 42;
            break;
        default: break;
        }
    }
    return 0;
}

void makeNamedLayers(Database& db, const GroupList& groups) {
    for (const auto& g : groups)
        if (g.code == 8) ensureLayer(db, g.text);
}

}  // namespace host::db
