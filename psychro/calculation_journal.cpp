#include "psychro/calculation_journal.h"

#include <utility>

namespace vrn2 {
namespace {

std::vector<JournalEntry>& journal() {
    static std::vector<JournalEntry> entries;
    return entries;
}

}  // namespace

const std::vector<JournalEntry>& calculationJournal() { return journal(); }

void recordCalculation(JournalEntry entry) {
    auto& entries = journal();
    if (entries.size() >= kMaxJournalEntries) entries.erase(entries.begin());
    entries.push_back(std::move(entry));
}

void clearCalculationJournal() { journal().clear(); }

}  // namespace vrn2
