// The keyword list of acedInitGet and the replies that select its words.
//
// Words are separated by spaces. The capital letters of a word are its abbreviation: a reply
// selects the word when it is that abbreviation or a beginning of the word that takes in every
// capital ("LType": "lt", "lty", "ltype"; "eXit": "x", "ex", "exit"); a word without capitals
// must be typed whole, as must one in capitals only. "WORD,ABBREV" gives the abbreviation
// explicitly: any beginning of WORD at least as long as ABBREV. Replies compare without case.
// A lone "_" splits local words from the same number of global ones: a local match answers
// the global word at its place, and a reply starting with "_" is matched against the global
// words. Earlier words win over later ones.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class KeywordList {
public:
    KeywordList() = default;
    explicit KeywordList(std::wstring_view list);

    bool empty() const { return local_.empty(); }
    // The keyword REPLY selects, as the caller spelt it in the list (the global form when the
    // list has one); nullopt when it selects none.
    std::optional<std::wstring> match(std::wstring_view reply) const;

private:
    struct Word {
        std::wstring text;      // as written, without ",ABBREV"
        std::wstring abbrev;    // the capitals, or ABBREV
        size_t minimumPrefix;   // the shortest beginning of the word that selects it
    };
    static Word parseWord(std::wstring_view token);
    static bool selects(const Word& word, std::wstring_view reply);

    std::vector<Word> local_;
    std::vector<Word> global_;
};

}  // namespace host
