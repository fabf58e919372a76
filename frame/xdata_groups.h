// Extended-data groups of one application as the module stores them: the nesting count of
// 1002 braces, and the conversion of an AutoLISP list to groups and back.
#pragma once

#include "adsdef.h"

namespace vrn2 {

// The nesting count over the groups behind -3: a 1002 "{" (any case) goes one level deeper,
// every other 1002 one level up. A group stands at the level before it is counted, so the
// opening brace of a top-level brace group stands at level 0.
class XdataNesting {
public:
    // Takes the next group and answers the level it stands at.
    int step(const resbuf* group);
    int level() const { return level_; }

private:
    int level_ = 0;
};

// The entity's list with the extended data of every application; null when it cannot be read.
resbuf* readWithAllXdata(const ads_name entity);

// The entity's -3 group, or null when it has no extended data.
resbuf* findXdataMark(resbuf* entity);

bool isOpeningBrace(const resbuf* group);
bool isApplicationGroup(const resbuf* group, const ACHAR* application);

// Where the application's own groups stand in the entity's extended data.
struct ApplicationBlock {
    resbuf* name = nullptr;        // its level-0 group 1001
    resbuf* last = nullptr;        // its last group before the next application
    resbuf* string = nullptr;      // its first level-0 group 1000
    resbuf* beforeBrace = nullptr; // the group in front of its first level-0 brace group
    resbuf* braceEnd = nullptr;    // the closing brace of that group
};

// Finds the application's block among the groups behind MARK, the entity's -3 group.
ApplicationBlock findBlock(resbuf* mark, const ACHAR* application);

// Converts the AutoLISP list that starts at LIST (an RTLB) into groups, stopping where the
// list's own RTLE brings the level back to 0. A dotted pair's RTDOTE writes a closing brace
// without changing the level. Answers RTNORM with *groups set, or RTERROR after the alert
// "Memory is not enough " when a buffer cannot be had.
int listToXdata(const resbuf* list, resbuf** groups);

// Wraps a 2D or 3D point as the list of its two or three reals, then converts it.
int pointToXdata(const resbuf* point, resbuf** groups);

// Converts groups back to a list, starting at the 1002 FROM and stopping where the level
// returns to 0. A group with no list counterpart, or groups that end inside a brace, print
// "\ninvalid input list" and answer RTERROR with nothing built.
int xdataToList(const resbuf* from, resbuf** list);

}  // namespace vrn2
