#include "duct/results_text.h"

#include <vector>

#include "duct/segment_loss.h"
#include "frame/text_format.h"

namespace vrn2::duct {
namespace {

double fileVelocity(const DuctSegment& s) {
    double perSecond = s.flow / 3600.0 * 1000.0 * 1000.0;
    if (s.shape == kShapeCircular) return perSecond / (kQuarterPi * s.size1 * s.size1);
    return perSecond / (static_cast<double>(s.size1) * s.size2);
}

bool printableSize(const DuctSegment& s) { return hasSize({s.shape, s.size1, s.size2, s.flow}); }

// Number, flow, length, size and velocity; a duct without a size gets "none" for both.
void appendSegmentColumns(std::wstring& out, const DuctSegment& s, const wchar_t* ending) {
    if (!printableSize(s)) {
        appendFormat(out, L"%4d  %15.3lf  %8.3lf     none      none\n", s.number, s.flow, s.length);
        return;
    }
    if (s.shape == kShapeCircular) {
        appendFormat(out, L"%4d%14.3lf %8.3lf     %4d     %8.4lf", s.number, s.flow, s.length, s.size1, fileVelocity(s));
    } else {
        appendFormat(out, L"%4d%14.3lf %8.3lf  %4d×%4d  %8.4lf", s.number, s.flow, s.length, s.size1, s.size2,
                fileVelocity(s));
    }
    out += ending;
}

void appendMainLines(std::wstring& out, const DuctNetwork& net) {
    int s = net.held() ? 0 : kNoSegment;
    while (s != kNoSegment) {
        const DuctSegment& seg = net.segments[s];
        if (printableSize(seg)) {
            appendSegmentColumns(out, seg, L"  ");
            if (seg.pressureLoss) appendFormat(out, L"%10.6lf\n", *seg.pressureLoss);
            else out += L"\n";
        } else {
            appendSegmentColumns(out, seg, L"");
        }
        int next = kNoSegment;
        for (int b : seg.branches) {
            if (b != kNoSegment && net.segments[b].main) {
                next = b;
                break;
            }
        }
        s = next;
    }
}

// Each branch off the main path and everything below it, depth first in branch order.
void appendBranchLines(std::wstring& out, const DuctNetwork& net) {
    for (int s = net.held() ? 0 : kNoSegment; s != kNoSegment;) {
        const DuctSegment& seg = net.segments[s];
        int next = kNoSegment;
        for (int b : seg.branches) {
            if (b != kNoSegment && net.segments[b].main && next == kNoSegment) next = b;
        }
        if (seg.endKind != kEndOpen) {
            std::vector<int> stack;
            for (int i = 2; i >= 0; --i) {
                int b = seg.branches[i];
                if (b != kNoSegment && !net.segments[b].main) stack.push_back(b);
            }
            while (!stack.empty()) {
                int b = stack.back();
                stack.pop_back();
                appendSegmentColumns(out, net.segments[b], L"\n");
                for (int i = 2; i >= 0; --i) {
                    if (net.segments[b].branches[i] != kNoSegment) stack.push_back(net.segments[b].branches[i]);
                }
            }
        }
        s = next;
    }
}

}  // namespace

std::wstring ductResultsText(const DuctNetwork& network, double total) {
    std::wstring out = L"\n===============风道计算结果==============\n";
    out += L"\n管段编号 流量(m^3/h) 管长(m) 风管尺寸(mm) 流速(m/s) 阻力(Pa)";
    out += L"\n主风道\n";
    appendMainLines(out, network);
    appendFormat(out, L"\n最不利环路阻力为ΔP=%.4lf Pa\n", total);
    out += L"\n支风道:\n";
    appendBranchLines(out, network);
    return out;
}

}  // namespace vrn2::duct
