// A reader of its own (pairs of lines, records split at group 0), so that the checks do not
// rest on the reader under test.
#include "tests/host_db/dxf_lint.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <sstream>

namespace dbtest {
namespace {

struct Tag {
    int code;
    std::string value;
};

struct Rec {
    std::string section;
    std::string type;
    std::vector<Tag> tags;
    const std::string* find(int code) const {
        for (const auto& t : tags)
            if (t.code == code) return &t.value;
        return nullptr;
    }
};

std::string trim(std::string s) {
    while (!s.empty() && (s.back() == '\r' || s.back() == ' ')) s.pop_back();
    while (!s.empty() && s.front() == ' ') s.erase(s.begin());
    return s;
}

std::string upper(std::string s) {
    for (auto& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

std::vector<Rec> records(const std::string& text, std::vector<Tag>& header) {
    std::istringstream in(text);
    std::string codeLine, value;
    std::vector<Rec> out;
    std::string section;
    bool sectionName = false;
    while (std::getline(in, codeLine) && std::getline(in, value)) {
        int code = std::atoi(trim(codeLine).c_str());
        if (!value.empty() && value.back() == '\r') value.pop_back();
        if (code == 0 && (value == "SECTION" || value == "ENDSEC" || value == "EOF")) {
            sectionName = value == "SECTION";
            continue;
        }
        if (sectionName && code == 2) {
            section = value;
            sectionName = false;
            continue;
        }
        if (section == "HEADER") {
            header.push_back({code, value});
            continue;
        }
        if (code == 0) {
            out.push_back({section, value, {}});
        } else if (!out.empty()) {
            out.back().tags.push_back({code, value});
        }
    }
    return out;
}

}  // namespace

std::vector<std::string> lintDxf(const std::string& text) {
    std::vector<Tag> header;
    std::vector<Rec> recs = records(text, header);
    std::vector<std::string> faults;
    std::string version = "AC1009";
    unsigned long long seed = 0;
    for (size_t i = 0; i + 1 < header.size(); ++i) {
        if (header[i].code == 9 && header[i].value == "$ACADVER") version = header[i + 1].value;
        if (header[i].code == 9 && header[i].value == "$HANDSEED") seed = std::strtoull(header[i + 1].value.c_str(), nullptr, 16);
    }
    bool r12 = version < "AC1012";

    std::set<std::string> appids, blocks;
    std::map<unsigned long long, std::string> handles;
    for (const auto& r : recs) {
        if (r.type == "APPID" && r.find(2)) appids.insert(upper(*r.find(2)));
        if (r.type == "BLOCK" && r.find(2)) blocks.insert(upper(*r.find(2)));
        const std::string* h = r.find(r.type == "DIMSTYLE" ? 105 : 5);
        if (!h || r.type == "CLASS") continue;
        unsigned long long value = std::strtoull(h->c_str(), nullptr, 16);
        if (!handles.emplace(value, r.type).second) faults.push_back("handle " + *h + " is used twice");
        if (seed && value >= seed) faults.push_back("handle " + *h + " is not below $HANDSEED");
    }
    if (!r12 && !seed) faults.push_back("no $HANDSEED");
    for (const auto& r : recs) {
        bool inXdata = false;
        for (const auto& t : r.tags) {
            if (t.code == 1001) {
                inXdata = true;
                if (!appids.count(upper(t.value)))
                    faults.push_back(r.type + ": application " + t.value + " is not in APPID");
            }
        }
        (void)inXdata;
        if (!r12 && r.section != "CLASSES") {
            const std::string* owner = r.find(330);
            if (r.type != "ENDTAB" && r.type != "TABLE" && r.find(5) && !owner)
                faults.push_back(r.type + " " + *r.find(5) + " has no owner");
            if (owner && *owner != "0" && !handles.count(std::strtoull(owner->c_str(), nullptr, 16)))
                faults.push_back(r.type + ": owner " + *owner + " names nothing");
        }
        if (r.type == "INSERT" && (!r.find(2) || !blocks.count(upper(*r.find(2)))))
            faults.push_back("INSERT of a block that does not exist");
        if (r.type == "LWPOLYLINE") {
            bool seenMarker = false, ok = false;
            for (const auto& t : r.tags) {
                if (t.code == 100 && t.value == "AcDbPolyline") {
                    seenMarker = true;
                    continue;
                }
                if (seenMarker) {
                    ok = t.code == 90;
                    break;
                }
            }
            if (!ok) faults.push_back("LWPOLYLINE without 90 first in AcDbPolyline");
        }
    }
    // Parts of complex entities are owned by their head.
    for (size_t i = 0; i < recs.size(); ++i) {
        if (r12 || (recs[i].type != "POLYLINE" && recs[i].type != "INSERT")) continue;
        const std::string* head = recs[i].find(5);
        for (size_t j = i + 1; j < recs.size(); ++j) {
            const auto& sub = recs[j];
            if (sub.type != "VERTEX" && sub.type != "ATTRIB" && sub.type != "SEQEND") break;
            const std::string* owner = sub.find(330);
            if (!owner || !head || upper(*owner) != upper(*head))
                faults.push_back(sub.type + " is not owned by its " + recs[i].type);
            if (sub.type == "SEQEND") break;
        }
    }
    return faults;
}

}  // namespace dbtest
