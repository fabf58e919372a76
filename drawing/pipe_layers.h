// Layer and block name patterns (the platform's wildcard syntax, matched against upper-cased
// names) that tell pipes and equipment from everything else in a drawing.
#pragma once

namespace vrn2::drawing {

// Layers of the pipes a run is traced along; the leading "$" is a plain character.
inline constexpr wchar_t kTracedPipeLayers[] = L"$[PJRXI]##-@@";
// Layers of LINE pipes checked for collisions.
inline constexpr wchar_t kCollisionLineLayers[] = L"[JPRXI]##-@@";
// Layers of POLYLINE pipes cut at crossings.
inline constexpr wchar_t kBreakPolylineLayers[] = L"$[JPRXI]##-@@";
inline constexpr wchar_t kEquipmentBlocks[] =
    L"[FTIBSJGD][0-z][0-z][0-z][0-z]-A,[FTIBSJGD][0-z][0-z][0-z][0-z]-B[1-4]";
inline constexpr wchar_t kFittingBlock[] = L"_PLB2";
inline constexpr wchar_t kSmallFittingBlocks[] = L"_PLB[ABCDE2]";

}  // namespace vrn2::drawing
