// Database functions of the host interface: entities, tables, extended data, conversions.
#pragma once

#include <string.h>

#include "adscodes.h"
#include "adsdef.h"

#ifdef __cplusplus
extern "C" {
#endif

struct resbuf* acdbEntGet(const ads_name ent);
struct resbuf* acdbEntGetX(const ads_name ent, const struct resbuf* args);
int acdbEntMod(const struct resbuf* ent);
int acdbEntMake(const struct resbuf* ent);
int acdbEntDel(const ads_name ent);
int acdbEntNext(const ads_name ent, ads_name result);
int acdbEntLast(ads_name result);
int acdbEntUpd(const ads_name ent);
int acdbHandEnt(const ACHAR* handle, ads_name entres);

int acdbRegApp(const ACHAR* appname);
struct resbuf* acdbTblSearch(const ACHAR* tblname, const ACHAR* sym, int setnext);
int acdbTblObjName(const ACHAR* tblname, const ACHAR* sym, ads_name result);
struct resbuf* acdbTblNext(const ACHAR* tblname, int rewind);
int acdbXdRoom(const ads_name ent, long* result);
int acdbXdSize(const struct resbuf* rb, long* result);

int acdbRToS(ads_real val, int unit, int prec, ACHAR* str);
int acdbDisToF(const ACHAR* str, int unit, ads_real* v);

void acdbFail(const ACHAR* str);

#ifdef __cplusplus
}
#endif

#define acdbNameSet(from, to) (memcpy((to), (from), sizeof(ads_name)))
#define acdbPointSet(from, to) (memcpy((to), (from), sizeof(ads_point)))
#define acdbNameClear(name) ((name)[0] = (name)[1] = 0)
#define acdbNameNil(name) ((name)[0] == 0 && (name)[1] == 0)
#define acdbNameEqual(a, b) ((a)[0] == (b)[0] && (a)[1] == (b)[1])
