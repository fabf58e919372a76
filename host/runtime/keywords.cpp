#include "host/runtime/keywords.h"

#include "host/text.h"

namespace host {
namespace {

std::vector<std::wstring_view> tokens(std::wstring_view list) {
    std::vector<std::wstring_view> out;
    size_t i = 0;
    while (i < list.size()) {
        while (i < list.size() && list[i] == L' ') ++i;
        size_t start = i;
        while (i < list.size() && list[i] != L' ') ++i;
        if (i > start) out.push_back(list.substr(start, i - start));
    }
    return out;
}

bool isCapital(wchar_t c) { return c >= L'A' && c <= L'Z'; }

bool startsWithNoCase(std::wstring_view text, std::wstring_view prefix) {
    return prefix.size() <= text.size() && equalsNoCase(text.substr(0, prefix.size()), prefix);
}

}  // namespace

KeywordList::KeywordList(std::wstring_view list) {
    bool global = false;
    for (std::wstring_view token : tokens(list)) {
        if (token == L"_") {
            global = true;
            continue;
        }
        (global ? global_ : local_).push_back(parseWord(token));
    }
}

KeywordList::Word KeywordList::parseWord(std::wstring_view token) {
    Word w;
    size_t comma = token.find(L',');
    if (comma != std::wstring_view::npos) {
        w.text = token.substr(0, comma);
        w.abbrev = token.substr(comma + 1);
        w.minimumPrefix = w.abbrev.empty() ? w.text.size() : w.abbrev.size();
        return w;
    }
    w.text = token;
    size_t lastCapital = std::wstring::npos;
    for (size_t i = 0; i < w.text.size(); ++i)
        if (isCapital(w.text[i])) {
            w.abbrev += w.text[i];
            lastCapital = i;
        }
    bool allCapitals = w.abbrev.size() == w.text.size();
    w.minimumPrefix = lastCapital == std::wstring::npos || allCapitals ? w.text.size() : lastCapital + 1;
    if (allCapitals) w.abbrev.clear();
    return w;
}

bool KeywordList::selects(const Word& word, std::wstring_view reply) {
    if (reply.empty()) return false;
    if (!word.abbrev.empty() && equalsNoCase(reply, word.abbrev)) return true;
    return reply.size() >= word.minimumPrefix && startsWithNoCase(word.text, reply);
}

std::optional<std::wstring> KeywordList::match(std::wstring_view reply) const {
    if (!reply.empty() && reply.front() == L'_' && !global_.empty()) {
        for (const Word& w : global_)
            if (selects(w, reply.substr(1))) return w.text;
        return std::nullopt;
    }
    for (size_t i = 0; i < local_.size(); ++i)
        if (selects(local_[i], reply)) return i < global_.size() ? global_[i].text : local_[i].text;
    return std::nullopt;
}

}  // namespace host
