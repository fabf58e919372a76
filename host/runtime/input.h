// Answers to the interactive picks of the module, queued by the console or by tests.
#pragma once

#include "adsdef.h"

namespace host {

void queueEntityPick(const ads_name ent, const ads_point pt);
void queuePointPick(const ads_point pt);
void clearPicks();
// Takes the next queued entity pick without a prompt; false when none is queued.
bool takeEntityPick(ads_name ent, ads_point pt);

}  // namespace host
