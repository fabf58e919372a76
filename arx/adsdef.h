// Basic types of the host interface: reals, points, names and the result buffer.
#pragma once

#include "AdAChar.h"

#pragma pack(push, 8)

typedef double ads_real;
typedef ads_real ads_point[3];
typedef long ads_name[2];
typedef ads_real ads_matrix[4][4];
typedef ads_real* ads_pointp;
typedef long* ads_namep;

enum { X = 0, Y = 1, Z = 2, T = 3 };

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif
#define EOS ACRX_T('\0')
#define PAUSE ACRX_T("\\")

struct ads_binary {
    short clen;
    char* buf;
};

union ads_u_val {
    ads_real rreal;
    ads_real rpoint[3];
    short rint;
    ACHAR* rstring;
    long rlname[2];
    long rlong;
    struct ads_binary rbinary;
    unsigned char ihandle[8];
};

struct resbuf {
    struct resbuf* rbnext;
    short restype;
    union ads_u_val resval;
};

typedef struct resbuf* pResbuf;
typedef const struct resbuf* kpResbuf;

// Input control flags for acedInitGet
#define RSG_NONULL 0x01
#define RSG_NOZERO 0x02
#define RSG_NONEG 0x04
#define RSG_NOLIM 0x08
#define RSG_GETZ 0x10
#define RSG_DASH 0x20
#define RSG_2D 0x40
#define RSG_OTHER 0x80
#define RSG_DDISTFIRST 0x100
#define RSG_TRACKUCS 0x200
#define RSG_NOORTHOZ 0x400
#define RSG_NOOSNAP 0x800

#pragma pack(pop)
