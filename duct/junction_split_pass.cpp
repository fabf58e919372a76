#include "duct/junction_split_pass.h"

#include <array>
#include <vector>

#include "acdbads.h"
#include "adscodes.h"
#include "duct/duct_xdata.h"
#include "duct/junction_splits.h"
#include "frame/entity_list.h"
#include "frame/list_builder.h"
#include "frame/selection_set.h"

namespace vrn2::duct {
namespace {

// Applications a new piece does not inherit from the line it was broken from.
constexpr const wchar_t* kNotCopied[] = {L"K_DUCT_F", L"K_DUCT_NO", L"K_DUCT_G", L"K_DUCT_DP",
                                         L"K_DUCT_V", L"is_main",   L"outfile"};

bool selectModelSpaceLines(SelectionSet& lines, const std::wstring& layer) {
    ListBuilder filter;
    if (!filter.addString(0, L"LINE") || !filter.addString(8, layer.c_str()) || !filter.addShort(67, 0))
        return false;
    return lines.select(L"X", nullptr, nullptr, filter.get()) == RTNORM;
}

bool breakAt(HostCommands& commands, const ads_name line, const Point3& at) {
    ads_point p;
    at.to(p);
    ads_name last;
    if (!commands.run(RTSTR, L"BREAK", RTENAME, line, RTSTR, L"F", RT3DPOINT, p, RT3DPOINT, p)) return false;
    if (acdbEntLast(last) != RTNORM || (last[0] == line[0] && last[1] == line[1])) return true;
    for (const wchar_t* application : kNotCopied) removeXdata(last, application);
    return true;
}

}  // namespace

bool splitLinesAtJunctions(HostCommands& commands, const std::wstring& layer) {
    SelectionSet selection;
    if (!selectModelSpaceLines(selection, layer)) return true;  // no lines: nothing to split
    std::vector<LineEnds> ends;
    std::vector<std::array<long, 2>> names;
    ads_name entity;
    for (long i = 0; selection.at(i, entity); ++i) {
        EntityList list(entity);
        ends.push_back({list.point(10).value_or(Point3{}), list.point(11).value_or(Point3{})});
        names.push_back({entity[0], entity[1]});
    }
    bool ok = true;
    for (const LineSplits& split : junctionSplits(ends)) {
        ads_name line = {names[split.line][0], names[split.line][1]};
        // From the far end back, so the line that keeps the name is always the part to break.
        for (auto it = split.points.rbegin(); it != split.points.rend(); ++it) ok &= breakAt(commands, line, *it);
    }
    return ok;
}

}  // namespace vrn2::duct
