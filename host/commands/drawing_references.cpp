#include "host/commands/drawing_references.h"

#include <string_view>

#include "host/db/blob.h"
#include "host/db/database.h"
#include "host/text.h"

namespace host::cmd {

References referencesOf(const db::Database& d) {
    References refs;
    for (const db::Record& r : d.records()) {
        if (r.deleted) continue;
        if (r.kind != db::RecordKind::Entity && r.kind != db::RecordKind::SubEntity &&
            r.kind != db::RecordKind::BlockBegin)
            continue;
        std::string_view raw;
        if (db::findGroup(r.groups, 8, raw)) refs.layers.insert(upperAscii(d.text(raw)));
        const std::string& type = d.typeName(r);
        if ((type == "INSERT" || type == "DIMENSION") && db::findGroup(r.groups, 2, raw))
            refs.blocks.insert(upperAscii(d.text(raw)));
    }
    return refs;
}

}  // namespace host::cmd
