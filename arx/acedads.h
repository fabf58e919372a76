// Editor functions of the host interface: external functions, results, symbols, system
// variables, commands, user input, selection sets, coordinate transforms, messages.
#pragma once

#include "adscodes.h"
#include "adsdef.h"

#ifdef __cplusplus
extern "C" {
#endif

// External (AutoLISP-callable) functions
int acedDefun(const ACHAR* sname, short funcno);
int acedUndef(const ACHAR* sname, short funcno);
int acedGetFunCode(void);
struct resbuf* acedGetArgs(void);

// Results of an external function; the last one set wins
int acedRetInt(int ival);
int acedRetReal(ads_real rval);
int acedRetPoint(const ads_point pt);
int acedRetStr(const ACHAR* s);
int acedRetVal(const struct resbuf* rbuf);
int acedRetName(const ads_name aname, int type);
int acedRetList(const struct resbuf* rbuf);
int acedRetVoid(void);
int acedRetT(void);
int acedRetNil(void);

// AutoLISP symbols and system variables
int acedGetSym(const ACHAR* sname, struct resbuf** value);
int acedPutSym(const ACHAR* sname, struct resbuf* value);
int acedGetVar(const ACHAR* sym, struct resbuf* result);
int acedSetVar(const ACHAR* sym, const struct resbuf* val);

// Host commands
int acedCommand(int rtype, ...);
int acedCmd(const struct resbuf* rbp);

// User input. The get-functions answer RTNORM, RTNONE for a bare Enter (unless RSG_NONULL),
// RTKWORD for a keyword of acedInitGet's list (read it with acedGetInput), RTCAN when the
// user cancels, RTREJ while a dialog is open, RTERROR otherwise. acedInitGet applies to the
// next request only. acedGetString keeps at most 132 characters (RTINPUTTRUNCATED beyond);
// acedGetKword and acedGetInput at most 131.
int acedInitGet(int val, const ACHAR* kwl);
int acedGetInput(ACHAR* str);
int acedGetReal(const ACHAR* prompt, ads_real* result);
int acedGetInt(const ACHAR* prompt, int* result);
int acedGetDist(const ads_point pt, const ACHAR* prompt, ads_real* result);
int acedGetAngle(const ads_point pt, const ACHAR* prompt, ads_real* result);
int acedGetKword(const ACHAR* prompt, ACHAR* result);
int acedGetString(int cronly, const ACHAR* prompt, ACHAR* result);
int acedGetCorner(const ads_point pt, const ACHAR* prompt, ads_point result);
int acedEntSel(const ACHAR* str, ads_name entres, ads_point ptres);
int acedGetPoint(const ads_point pt, const ACHAR* prompt, ads_point result);

// Selection sets
int acedSSGet(const ACHAR* str, const void* pt1, const void* pt2, const struct resbuf* filter,
              ads_name ss);
int acedSSFree(const ads_name sname);
int acedSSLength(const ads_name sname, long* len);
int acedSSName(const ads_name ss, long i, ads_name entres);
int acedSSAdd(const ads_name ename, const ads_name sname, ads_name result);
int acedSSDel(const ads_name ename, const ads_name ss);
int acedSSMemb(const ads_name ename, const ads_name ss);

// Display and messages
int acedRedraw(const ads_name ent, int mode);
int acedAlert(const ACHAR* str);

// Coordinate systems: 0 world, 1 user, 2 display of the current viewport, 3 paper-space display
int acedTrans(const ads_point pt, const struct resbuf* from, const struct resbuf* to, int disp,
              ads_point result);

#ifdef __cplusplus
}
#endif
