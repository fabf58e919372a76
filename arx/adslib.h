// Everything of the ADS part of the host interface in one include.
#pragma once

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "adsdef.h"
