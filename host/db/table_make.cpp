#include "host/db/table_make.h"

#include "host/db/api_support.h"
#include "host/db/tables.h"
#include "host/text.h"

namespace host::db {
namespace {

// The fields every record of the table has, with the values a new record gets by default.
GroupList defaults(const std::string& table) {
    if (table == "LAYER") return {intGroup(70, 0), intGroup(62, 7), stringGroup(6, L"Continuous")};
    if (table == "LTYPE")
        return {intGroup(70, 0), stringGroup(3, L""), intGroup(72, 65), intGroup(73, 0), realGroup(40, 0.0)};
    if (table == "STYLE")
        return {intGroup(70, 0), realGroup(40, 0.0), realGroup(41, 1.0), realGroup(50, 0.0), intGroup(71, 0),
                realGroup(42, 2.5), stringGroup(3, L"txt"), stringGroup(4, L"")};
    return {intGroup(70, 0)};
}

bool givenByDatabase(int code) {
    return code == -1 || code == 5 || code == 105 || code == 330 || code == 360 || code == 100 || code == 102;
}

}  // namespace

bool isMadeAsTableRecord(const std::string& upperType) {
    return upperType == "LAYER" || upperType == "LTYPE" || upperType == "STYLE" || upperType == "APPID";
}

short makeTableRecord(Database& db, const std::string& table, const GroupList& data) {
    const Group* name = findCode(data, 2);
    if (!name || name->type != GroupType::String) return kErrMissingField;
    bool valid = table == "APPID" ? validAppName(name->text) : validSymbolName(name->text);
    if (!valid) return kErrBadSymbolName;
    if (db.findEntry(table, name->text) != kNone) return kErrBadSymbolName;
    GroupList fields{*name};
    for (const Group& g : data)
        if (g.code != 2 && !givenByDatabase(g.code)) fields.push_back(g);
    for (const Group& d : defaults(table))
        if (!findCode(fields, d.code)) fields.push_back(d);
    if (table == "LAYER") {
        const Group* linetype = findCode(fields, 6);
        if (!isByName(linetype->text) && db.findEntry("LTYPE", linetype->text) == kNone &&
            !equalsNoCase(linetype->text, L"Continuous"))
            return kErrBadLinetype;
        if (equalsNoCase(linetype->text, L"Continuous")) ensureContinuous(db);
    }
    addTableEntry(db, table, fields);
    return 0;
}

}  // namespace host::db
