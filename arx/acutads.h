// Utility functions of the host interface: result buffers, output, geometry, wildcards.
#pragma once

#include "adscodes.h"
#include "adsdef.h"

#ifdef __cplusplus
extern "C" {
#endif

struct resbuf* acutNewRb(int v);
int acutRelRb(struct resbuf* rb);
struct resbuf* acutBuildList(int rtype, ...);

// printf-style output on the command line. In the format, %s and %c take wide arguments,
// as in the platform's wide printf; %ls and %lc are accepted too.
int acutPrintf(const ACHAR* format, ...);

ads_real acutAngle(const ads_point pt1, const ads_point pt2);
ads_real acutDistance(const ads_point pt1, const ads_point pt2);
void acutPolar(const ads_point pt, ads_real angle, ads_real dist, ads_point ptres);

int acutWcMatch(const ACHAR* string, const ACHAR* pattern);

#ifdef __cplusplus
}
#endif
