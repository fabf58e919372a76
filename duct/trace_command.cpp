// "c:sssj": traces the supply-air network from a picked start duct, sums the outlet flows back
// to it, finds the main path and shows it. The trace itself is pure (network_trace); this
// handler reads the drawing into it and writes its results back.
#include <cwchar>
#include <cwctype>
#include <string>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "duct/duct_handlers.h"
#include "duct/duct_xdata.h"
#include "duct/held_network.h"
#include "duct/junction_split_pass.h"
#include "duct/main_path_display.h"
#include "duct/network_reader.h"
#include "frame/entity_list.h"
#include "frame/host_commands.h"
#include "frame/list_builder.h"
#include "frame/rblist.h"
#include "frame/selection_set.h"

namespace vrn2 {
namespace {

using namespace duct;

constexpr wchar_t kWarningLayer[] = L"SLJS_WARM";
constexpr wchar_t kLabelStyle[] = L"KSL_TEXT";

bool drawingScale(double& scale) {
    RbList value;
    if (acedGetSym(L"_tzbl", value.out()) != RTNORM || !value) return false;
    if (value.get()->restype == RTREAL) scale = value.get()->resval.rreal;
    else if (value.get()->restype == RTSHORT) scale = value.get()->resval.rint;
    else return false;
    return true;
}

void eraseWarningMarks() {
    ListBuilder filter;
    SelectionSet marks;
    if (!filter.addString(0, L"TEXT") || !filter.addString(8, kWarningLayer)) return;
    if (marks.select(L"X", nullptr, nullptr, filter.get()) != RTNORM) return;
    ads_name mark;
    for (long i = 0; marks.at(i, mark); ++i) acdbEntDel(mark);
}

std::wstring upper(std::wstring text) {
    for (wchar_t& c : text) c = static_cast<wchar_t>(std::towupper(c));
    return text;
}

int layerColour(const std::wstring& layer) {
    RbList record(acdbTblSearch(L"LAYER", layer.c_str(), 0));
    EntityList list(std::move(record));
    return static_cast<int>(list.integer(62).value_or(7));
}

// The label style and its layer, made once per drawing.
bool prepareLabels(HostCommands& commands) {
    RbList style(acdbTblSearch(L"STYLE", kLabelStyle, 0));
    if (!style && !commands.run(RTSTR, L"STYLE", RTSTR, kLabelStyle, RTSTR, L"txt", RTREAL, 0.0, RTREAL, 1.0,
                                RTREAL, 0.0, RTSTR, L"N", RTSTR, L"N")) {
        return false;
    }
    RbList layer(acdbTblSearch(L"LAYER", kLabelStyle, 0));
    return layer || commands.run(RTSTR, L"LAYER", RTSTR, L"N", RTSTR, kLabelStyle, RTSTR, L"");
}

void markMissingFlow(HostCommands& commands, const Point3& at, double scale) {
    ads_point p;
    at.to(p);
    RbList layer(acdbTblSearch(L"LAYER", kWarningLayer, 0));
    if (!layer) commands.run(RTSTR, L"LAYER", RTSTR, L"N", RTSTR, kWarningLayer, RTSTR, L"");
    commands.run(RTSTR, L"layer", RTSTR, L"set", RTSTR, kWarningLayer, RTSTR, L"c", RTSHORT, 240, RTSTR,
                 kWarningLayer, RTSTR, L"");
    commands.run(RTSTR, L"text", RTSTR, L"j", RTSTR, L"m", RT3DPOINT, p, RTREAL, 7.0 * scale, RTREAL, 0.0, RTSTR,
                 L"?");
}

bool entityOfSegment(const DuctNetwork& net, int s, ads_name line) {
    return acdbHandEnt(net.segments[s].handle.c_str(), line) == RTNORM;
}

// The trace's writes: flows, "is_main" on new leaves, marks at outlets without a flow.
void applyTrace(HostCommands& commands, const TraceResult& trace, double scale) {
    const DuctNetwork& net = trace.network;
    ads_name line;
    for (const FlowWrite& w : trace.flowWrites) {
        if (entityOfSegment(net, w.segment, line)) writeXdataValue(line, L"K_DUCT_G", w.flow);
    }
    for (int leaf : trace.leavesWithoutMainMark) {
        if (entityOfSegment(net, leaf, line)) writeXdataText(line, L"is_main", L"0");
    }
    for (const Point3& at : trace.missingFlowOutlets) markMissingFlow(commands, at, scale);
}

int indexOf(const SelectionSet& selection, const ads_name entity) {
    ads_name member;
    for (long i = 0; selection.at(i, member); ++i) {
        if (member[0] == entity[0] && member[1] == entity[1]) return static_cast<int>(i);
    }
    return -1;
}

int traceFrom(HostCommands& commands, const ads_name start, const Point3& pick, const std::wstring& layer,
              double scale) {
    SelectionSet network;
    ListBuilder filter;
    if (!filter.addString(8, layer.c_str()) || network.select(L"X", nullptr, nullptr, filter.get()) != RTNORM ||
        network.length() == 0) {
        acedAlert(L"风道布置图还没生成.");
        return RTERROR;
    }
    DuctNetwork& held = heldNetwork();
    held.clear();
    std::vector<NetworkEntity> entities = readNetworkEntities(network);
    int root = indexOf(network, start);
    if (root < 0) {
        acedAlert(L"风道布置图还没生成.");
        return RTERROR;
    }
    TraceResult trace = traceNetwork(entities, root, pick);
    applyTrace(commands, trace, scale);
    if (trace.status == TraceStatus::TooManyBranches) {
        acutPrintf(L"\n输入管网不能超过三个分支.");
        return RTNORM;
    }
    trace.network.layerName = layer;
    trace.network.layerColour = layerColour(layer);
    if (!findMainPath(trace, entities)) {
        acutPrintf(L"\nseek_mduct failed!");
    } else {
        showMainDuctLength(trace.network.mainLength);
        recolourMainPath(commands, trace.network);
    }
    if (!trace.missingFlowOutlets.empty()) acutPrintf(L"\n图中打问号的送风口未输入数据.");
    held = std::move(trace.network);
    return RTNORM;
}

}  // namespace

int traceDuctNetwork() {
    double scale = 1.0;
    if (!drawingScale(scale)) {
        acutPrintf(L"\n未设置绘图比例_tzbl.");
        return RTERROR;
    }
    HostCommands commands;
    eraseWarningMarks();
    ads_name start;
    ads_point picked;
    if (acedEntSel(L"\n选择起始风道:", start, picked) != RTNORM) {
        acedAlert(L"\n没选择起始风道.");
        return RTERROR;
    }
    EntityList line(start);
    std::wstring layer = line.layer();
    if (upper(layer).find(L"SLJS-") == std::wstring::npos) {
        acedAlert(L"选择风道无效.");
        return RTNORM;
    }
    if (line.type() != L"LINE") {
        acedAlert(L"\n选择起始段不是风道.");
        return RTNORM;
    }
    if (!prepareLabels(commands)) {
        acedAlert(L"没有足够的内存分配.");
        return RTERROR;
    }
    acutPrintf(L"\n稍候...");
    splitLinesAtJunctions(commands, layer);
    return traceFrom(commands, start, Point3::of(picked), layer, scale);
}

}  // namespace vrn2
