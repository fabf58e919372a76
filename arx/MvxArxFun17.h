// Functions of the suite's helper module MvxArxFun17 (the subset used here).
#pragma once

#include "dbid.h"
#include "gepnt3d.h"

// Cuts the polyline pipe ID between PT1 and PT2 (points on it, in either order): the part
// between them is removed, and the pieces before and after are new entities carrying the
// pipe's layer, extended data and properties, handed back in ID1 and ID2 (a null id for a
// piece of no length). Non-zero on success.
int BreakLine(AcDbObjectId id, AcGePoint3d pt1, AcGePoint3d pt2, AcDbObjectId& id1, AcDbObjectId& id2);
