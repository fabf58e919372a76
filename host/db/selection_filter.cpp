#include "host/db/selection_filter.h"

#include <cmath>

#include "adscodes.h"
#include "host/db/api_support.h"
#include "host/db/entity_lists.h"
#include "host/db/resbuf_groups.h"
#include "host/db/wildcard.h"
#include "host/text.h"

namespace host::db {

struct SelectionFilter::Node {
    enum class Kind { Test, Xdata, And, Or, Xor, Not };
    Kind kind = Kind::Test;
    Group value;
    std::wstring ops[3] = {L"=", L"=", L"="};
    std::vector<std::wstring> apps;
    std::vector<std::unique_ptr<Node>> children;
};

namespace {

using Node = SelectionFilter::Node;
using Kind = Node::Kind;

constexpr int kMaxDepth = 32;

// What an entity offers a filter: its type, its groups and its applications.
struct View {
    std::wstring type;
    GroupList data;
    std::vector<std::wstring> apps;
};

bool isRelational(const std::wstring& op) {
    return op == L"*" || op == L"=" || op == L"!=" || op == L"/=" || op == L"<>" || op == L"<" ||
           op == L"<=" || op == L">" || op == L">=";
}
bool isEquality(const std::wstring& op) {
    return op == L"*" || op == L"=" || op == L"!=" || op == L"/=" || op == L"<>";
}
bool isNotEqual(const std::wstring& op) { return op == L"!=" || op == L"/=" || op == L"<>"; }

std::wstring trimmed(std::wstring s) {
    while (!s.empty() && s.front() == L' ') s.erase(s.begin());
    while (!s.empty() && s.back() == L' ') s.pop_back();
    return s;
}

template <class T>
bool compare(const std::wstring& op, T v, T ref) {
    if (op == L"*") return true;
    if (op == L"=") return v == ref;
    if (isNotEqual(op)) return v != ref;
    if (op == L"<") return v < ref;
    if (op == L"<=") return v <= ref;
    if (op == L">") return v > ref;
    if (op == L">=") return v >= ref;
    return false;
}

bool compareReal(const std::wstring& op, double v, double ref) {
    double fuzz = 1e-10 * std::max(1.0, std::fabs(ref));
    if (op == L"=") return std::fabs(v - ref) <= fuzz;
    if (isNotEqual(op)) return std::fabs(v - ref) > fuzz;
    return compare(op, v, ref);
}

// Values an entity has when it does not hold the group.
bool defaultFor(int code, Group& g) {
    static const double up[3] = {0, 0, 1};
    switch (code) {
    case 62: g = intGroup(62, 256); return true;
    case 6: g = stringGroup(6, L"BYLAYER"); return true;
    case 67: g = intGroup(67, 0); return true;
    case 38:
    case 39: g = realGroup(code, 0.0); return true;
    case 48: g = realGroup(48, 1.0); return true;
    case 60: g = intGroup(60, 0); return true;
    case 210: g = pointGroup(210, up); return true;
    default: return false;
    }
}

bool testOne(const Node& n, const Group& g) {
    const Group& ref = n.value;
    switch (ref.type) {
    case GroupType::Real: return compareReal(n.ops[0], g.real, ref.real);
    case GroupType::Short:
    case GroupType::Long:
        if (n.ops[0] == L"&") return (g.integer & ref.integer) != 0;
        if (n.ops[0] == L"&=") return (g.integer & ref.integer) == ref.integer;
        return compare(n.ops[0], g.integer, ref.integer);
    case GroupType::Point:
        if (ref.code == 210 || (n.ops[0] == n.ops[1] && n.ops[1] == n.ops[2] && isEquality(n.ops[0]))) {
            if (n.ops[0] == L"*") return true;
            double d = std::hypot(g.point[0] - ref.point[0], g.point[1] - ref.point[1], g.point[2] - ref.point[2]);
            bool same = d <= 1e-10 * std::max(1.0, std::hypot(ref.point[0], ref.point[1], ref.point[2]));
            return isNotEqual(n.ops[0]) ? !same : same;
        }
        for (int i = 0; i < 3; ++i)
            if (!compareReal(n.ops[i], g.point[i], ref.point[i])) return false;
        return true;
    case GroupType::Name: {
        bool same = g.ref == ref.ref;
        return n.ops[0] == L"*" || (isNotEqual(n.ops[0]) ? !same : same);
    }
    case GroupType::Binary: return n.ops[0] == L"*" || (g.binary == ref.binary) != isNotEqual(n.ops[0]);
    default: {
        if (n.ops[0] == L"*") return true;
        bool match = wildcardMatchNoCase(g.text, ref.text);
        return isNotEqual(n.ops[0]) ? !match : match;
    }
    }
}

bool evaluate(const Node& n, const View& v) {
    switch (n.kind) {
    case Kind::Test: {
        if (n.value.code == 0) {
            Group type = stringGroup(0, v.type);
            return testOne(n, type);
        }
        bool any = false;
        for (const auto& g : v.data)
            if (g.code == n.value.code && g.type == n.value.type && testOne(n, g)) return true;
        for (const auto& g : v.data) any |= g.code == n.value.code;
        Group fallback;
        return !any && defaultFor(n.value.code, fallback) && testOne(n, fallback);
    }
    case Kind::Xdata:
        for (const auto& pattern : n.apps) {
            bool found = false;
            for (const auto& app : v.apps) found |= wildcardMatchNoCase(app, pattern);
            if (!found) return false;
        }
        return true;
    case Kind::And:
        for (const auto& c : n.children)
            if (!evaluate(*c, v)) return false;
        return true;
    case Kind::Or:
        for (const auto& c : n.children)
            if (evaluate(*c, v)) return true;
        return false;
    case Kind::Xor: return evaluate(*n.children[0], v) != evaluate(*n.children[1], v);
    case Kind::Not: return !evaluate(*n.children[0], v);
    }
    return false;
}

bool filterable(int code) {
    return !(code == -1 || code == -2 || code == 5 || code == 105 || (code > 1001) || code == 1000 ||
             code < -5 || groupType(code) == GroupType::None);
}

class Parser {
public:
    Parser(const Database& db, bool& needsData, bool& needsXdata)
        : db_(db), needsData_(needsData), needsXdata_(needsXdata) {}

    // Reads operands up to the end of the list or the closing of a grouping.
    short sequence(const resbuf*& rb, Kind group, std::vector<std::unique_ptr<Node>>& out, int depth) {
        while (rb) {
            if (rb->restype == -4) {
                std::wstring op = upperAscii(trimmed(rb->resval.rstring ? rb->resval.rstring : L""));
                if (op == L"<AND" || op == L"<OR" || op == L"<XOR" || op == L"<NOT") {
                    if (depth + 1 > kMaxDepth) return kErrFilterDepth;
                    auto node = std::make_unique<Node>();
                    node->kind = op == L"<AND" ? Kind::And : op == L"<OR" ? Kind::Or : op == L"<XOR" ? Kind::Xor : Kind::Not;
                    rb = rb->rbnext;
                    if (short err = sequence(rb, node->kind, node->children, depth + 1)) return err;
                    if (node->children.empty()) return kErrFilterNesting;
                    if (node->kind == Kind::Not && node->children.size() != 1) return kErrFilterArgCount;
                    if (node->kind == Kind::Xor && node->children.size() != 2) return kErrFilterArgCount;
                    out.push_back(std::move(node));
                    continue;
                }
                if (op == L"AND>" || op == L"OR>" || op == L"XOR>" || op == L"NOT>") {
                    Kind closing = op == L"AND>" ? Kind::And : op == L"OR>" ? Kind::Or : op == L"XOR>" ? Kind::Xor : Kind::Not;
                    if (group == Kind::Test || closing != group) return kErrFilterMismatch;
                    rb = rb->rbnext;
                    return 0;
                }
                if (op.find(L',') == std::wstring::npos && !isRelational(op) && op != L"&" && op != L"&=")
                    return kErrFilterOpcode;
                rb = rb->rbnext;
                if (short err = test(rb, op, out)) return err;
                continue;
            }
            if (rb->restype == -3 || rb->restype == 1001) {
                if (short err = xdata(rb, out)) return err;
                continue;
            }
            if (short err = test(rb, L"=", out)) return err;
        }
        return group == Kind::Test ? 0 : kErrFilterEnd;
    }

private:
    short xdata(const resbuf*& rb, std::vector<std::unique_ptr<Node>>& out) {
        auto node = std::make_unique<Node>();
        node->kind = Kind::Xdata;
        if (rb->restype == -3) rb = rb->rbnext;
        while (rb && rb->restype == 1001) {
            node->apps.emplace_back(rb->resval.rstring ? rb->resval.rstring : L"");
            rb = rb->rbnext;
        }
        if (node->apps.empty()) return kErrFilterOperand;
        needsXdata_ = true;
        out.push_back(std::move(node));
        return 0;
    }

    short test(const resbuf*& rb, const std::wstring& op, std::vector<std::unique_ptr<Node>>& out) {
        if (!rb || rb->restype == -4 || rb->restype == -3) return kErrFilterOperand;
        if (!filterable(rb->restype)) return kErrFilterCode;
        auto node = std::make_unique<Node>();
        if (!resbufToGroup(db_, rb, node->value)) return kErrFilterCode;
        if (short err = operators(node->value, op, node->ops)) return err;
        if (rb->restype != 0) needsData_ = true;
        rb = rb->rbnext;
        out.push_back(std::move(node));
        return 0;
    }

    static short operators(const Group& g, const std::wstring& op, std::wstring ops[3]) {
        switch (g.type) {
        case GroupType::Point: {
            std::vector<std::wstring> parts;
            size_t start = 0;
            for (size_t i = 0; i <= op.size(); ++i)
                if (i == op.size() || op[i] == L',') {
                    parts.push_back(trimmed(op.substr(start, i - start)));
                    start = i + 1;
                }
            if (parts.size() == 1) parts = {parts[0], parts[0], parts[0]};
            if (parts.size() != 3) return kErrFilterVector;
            for (int i = 0; i < 3; ++i) {
                if (!isRelational(parts[i])) return kErrFilterVector;
                if (g.code == 210 && !isEquality(parts[i])) return kErrFilterVector;
                ops[i] = parts[i];
            }
            return 0;
        }
        case GroupType::Real:
            if (!isRelational(op)) return kErrFilterReal;
            break;
        case GroupType::Short:
        case GroupType::Long:
            if (!isRelational(op) && op != L"&" && op != L"&=") return kErrFilterInteger;
            break;
        default:
            if (!isEquality(op)) return kErrFilterString;
            break;
        }
        ops[0] = ops[1] = ops[2] = op;
        return 0;
    }

    const Database& db_;
    bool& needsData_;
    bool& needsXdata_;
};

}  // namespace

SelectionFilter::SelectionFilter() = default;
SelectionFilter::~SelectionFilter() = default;
SelectionFilter::SelectionFilter(SelectionFilter&&) noexcept = default;
SelectionFilter& SelectionFilter::operator=(SelectionFilter&&) noexcept = default;

bool SelectionFilter::empty() const { return nodes_.empty(); }

short SelectionFilter::compile(const Database& db, const resbuf* filter) {
    nodes_.clear();
    needsData_ = needsXdata_ = false;
    Parser parser(db, needsData_, needsXdata_);
    const resbuf* rb = filter;
    short err = parser.sequence(rb, Kind::Test, nodes_, 0);
    if (err) nodes_.clear();
    return err;
}

bool SelectionFilter::matches(const Database& db, uint32_t index) const {
    if (nodes_.empty()) return true;
    const Record& r = db.record(index);
    View v;
    v.type = db.text(db.typeName(r));
    if (needsData_ || needsXdata_) {
        GroupList xdata;
        decodeGroups(db, r.groups, v.data, needsXdata_ ? &xdata : nullptr);
        toListForm(db.typeName(r), v.data);
        for (const auto& g : xdata)
            if (g.code == 1001) v.apps.push_back(g.text);
    }
    for (const auto& n : nodes_)
        if (!evaluate(*n, v)) return false;
    return true;
}

}  // namespace host::db
