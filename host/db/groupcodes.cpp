#include "host/db/groupcodes.h"

#include "adscodes.h"

namespace host {

GroupType groupType(int code) {
    switch (code) {
    case RTREAL: case RTANG: case RTORINT: return GroupType::Real;
    case RTPOINT: case RT3DPOINT: return GroupType::Point;
    case RTSHORT: return GroupType::Short;
    case RTLONG: return GroupType::Long;
    case RTSTR: return GroupType::String;
    case RTENAME: case RTPICKS: return GroupType::Name;
    default: break;
    }
    if (code >= 5000) return GroupType::None;
    if (code == -1 || code == -2) return GroupType::Name;
    if (code == -4) return GroupType::String;
    if (code < 0) return GroupType::None;
    if (code <= 9) return GroupType::String;
    if (code <= 18) return GroupType::Point;
    if (code <= 37) return GroupType::Real;  // Y and Z of file points, not in resbuf lists
    if (code <= 59) return GroupType::Real;
    if (code <= 79) return GroupType::Short;
    if (code <= 89) return GroupType::None;
    if (code <= 99) return GroupType::Long;
    if (code <= 102) return GroupType::String;
    if (code == 105) return GroupType::String;
    if (code >= 110 && code <= 112) return GroupType::Point;
    if (code >= 113 && code <= 149) return GroupType::Real;
    if (code >= 160 && code <= 169) return GroupType::Long;
    if (code >= 170 && code <= 179) return GroupType::Short;
    if (code == 210) return GroupType::Point;
    if (code >= 220 && code <= 239) return GroupType::Real;
    if (code >= 270 && code <= 299) return GroupType::Short;
    if (code >= 300 && code <= 309) return GroupType::String;
    if (code >= 310 && code <= 319) return GroupType::Binary;
    if (code >= 320 && code <= 329) return GroupType::Handle;
    if (code >= 330 && code <= 369) return GroupType::Name;
    if (code >= 370 && code <= 389) return GroupType::Short;
    if (code >= 390 && code <= 399) return GroupType::Name;
    if (code >= 400 && code <= 409) return GroupType::Short;
    if (code >= 410 && code <= 419) return GroupType::String;
    if (code >= 420 && code <= 429) return GroupType::Long;
    if (code >= 430 && code <= 439) return GroupType::String;
    if (code >= 440 && code <= 459) return GroupType::Long;
    if (code >= 460 && code <= 469) return GroupType::Real;
    if (code >= 470 && code <= 479) return GroupType::String;
    if (code >= 480 && code <= 481) return GroupType::Handle;
    if (code == 999) return GroupType::String;
    if (code >= 1000 && code <= 1003) return GroupType::String;
    if (code == 1004) return GroupType::Binary;
    if (code == 1005) return GroupType::String;
    if (code >= 1010 && code <= 1013) return GroupType::Point;
    if (code >= 1020 && code <= 1039) return GroupType::Real;
    if (code >= 1040 && code <= 1042) return GroupType::Real;
    if (code == 1070) return GroupType::Short;
    if (code == 1071) return GroupType::Long;
    return GroupType::None;
}

}  // namespace host
