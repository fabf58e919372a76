// DCL dialog functions of the host interface.
#pragma once

#include "adscodes.h"
#include "adsdef.h"

typedef void* ads_hdlg;
typedef void* ads_htile;

typedef struct {
    ads_hdlg dialog;
    ads_htile tile;
    ACHAR* value;
    void* client_data;
    int reason;
    long x, y;
} ads_callback_packet;

typedef void (*CLIENTFUNC)(ads_callback_packet* cpkt);
#define NULLCB ((CLIENTFUNC)0)

#define CBR_SELECT 1
#define CBR_LOST_FOCUS 2
#define CBR_DRAG 3
#define CBR_DOUBLE_CLICK 4

#define BAD_DIALOG NULL

#define DLGCANCEL 0
#define DLGOK 1
#define DLGALLDONE -1
#define DLGSTATUS 2

#define LIST_CHANGE ((short)1)
#define LIST_APPEND ((short)2)
#define LIST_NEW ((short)3)

#define MODE_ENABLE ((short)0)
#define MODE_DISABLE ((short)1)
#define MODE_SETFOCUS ((short)2)
#define MODE_SETSEL ((short)3)
#define MODE_FLIP ((short)4)

#define MAX_TILE_STR 40
#define TILE_STR_LIMIT 2035

// Logical colours of image tiles
#define BGLCOLOR -2
#define DBGLCOLOR -15
#define DFGLCOLOR -16
#define LINELCOLOR -18

#ifdef __cplusplus
extern "C" {
#endif

int ads_load_dialog(const ACHAR* dclfile, int* dcl_id);
int ads_unload_dialog(int dcl_id);
int ads_new_dialog(const ACHAR* dlgname, int dcl_id, CLIENTFUNC def_callback, ads_hdlg* hdlg);
int ads_new_positioned_dialog(const ACHAR* dlgname, int dcl_id, CLIENTFUNC def_callback, int x,
                              int y, ads_hdlg* hdlg);
int ads_start_dialog(ads_hdlg hdlg, int* status);
int ads_term_dialog(void);
int ads_action_tile(ads_hdlg hdlg, const ACHAR* key, CLIENTFUNC tilefunc);
int ads_done_dialog(ads_hdlg hdlg, int status);
int ads_done_positioned_dialog(ads_hdlg hdlg, int status, int* x_result, int* y_result);
int ads_set_tile(ads_hdlg hdlg, const ACHAR* key, const ACHAR* value);
int ads_client_data_tile(ads_hdlg hdlg, const ACHAR* key, void* clientdata);
int ads_get_tile(ads_hdlg hdlg, const ACHAR* key, ACHAR* value, int maxlen);
int ads_get_attr(ads_hdlg hdlg, const ACHAR* key, ACHAR* attr, ACHAR* value, int len);
int ads_get_attr_string(ads_htile tile, ACHAR* attr, ACHAR* value, int len);
int ads_start_list(ads_hdlg hdlg, const ACHAR* key, short operation, short index);
int ads_add_list(const ACHAR* item);
int ads_end_list(void);
int ads_mode_tile(ads_hdlg hdlg, const ACHAR* key, short mode);
int ads_dimensions_tile(ads_hdlg hdlg, const ACHAR* key, short* cx, short* cy);
int ads_start_image(ads_hdlg hdlg, const ACHAR* key);
// Outside an open image tile, a vector is drawn on the graphics screen as temporary graphics.
int ads_vector_image(short x1, short y1, short x2, short y2, short color);
int ads_fill_image(short x1, short y1, short x2, short y2, short color);
int ads_slide_image(short x1, short y1, short x2, short y2, const ACHAR* slnam);
int ads_end_image(void);

#ifdef __cplusplus
}
#endif
