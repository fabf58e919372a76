// The handlers of the drawing tools' AutoLISP functions, one per function of the table.
#pragma once

namespace vrn2 {

int collisionsAndBreaks();  // "pzjc"
int tracePipeRun();         // "gdsx"
int breakAlongSpan();       // "break_p"
int drawGrid();             // "c:fzzbsc"
int editGrid();             // "c:fzzbdy"

}  // namespace vrn2
