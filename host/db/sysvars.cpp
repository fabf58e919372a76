#include "host/db/sysvars.h"

#include "adscodes.h"
#include "host/text.h"

namespace host {

SysVars::SysVars() {
    const double origin[3] = {0, 0, 0};
    const double xdir[3] = {1, 0, 0};
    const double ydir[3] = {0, 1, 0};
    // Command and display settings touched by handlers that issue commands
    setShort(L"CMDECHO", 1);
    setShort(L"BLIPMODE", 0);
    setShort(L"HIGHLIGHT", 1);
    setShort(L"CMDACTIVE", 0, true);
    setShort(L"FILEDIA", 1);
    setShort(L"CMDDIA", 1);
    setShort(L"DIASTAT", 0, true);
    setShort(L"ERRNO", 0);
    setShort(L"OSMODE", 0);
    setShort(L"ORTHOMODE", 0);
    setShort(L"PICKBOX", 3);
    setShort(L"REGENMODE", 1);
    // The current view: a 1024 by 768 viewport showing the limits of a metric drawing
    const double viewCentre[3] = {210.0, 148.5, 0.0};
    const double screen[3] = {1024.0, 768.0, 0.0};
    const double viewDir[3] = {0, 0, 1};
    setPoint(L"VIEWCTR", viewCentre, false, true);
    setReal(L"VIEWSIZE", 297.0, true);
    setPoint(L"SCREENSIZE", screen, true, true);
    setPoint(L"VIEWDIR", viewDir, false, true);
    // The virtual screen covers the view: 297 high and 297 * 1024 / 768 = 396 wide.
    const double virtualMin[3] = {12.0, 0.0, 0.0};
    const double virtualMax[3] = {408.0, 297.0, 0.0};
    setPoint(L"VSMIN", virtualMin, false, true);
    setPoint(L"VSMAX", virtualMax, false, true);
    setReal(L"VIEWTWIST", 0.0, true);
    // Units and formats
    setShort(L"LUNITS", 2);
    setShort(L"LUPREC", 4);
    setShort(L"AUNITS", 0);
    setShort(L"AUPREC", 0);
    setReal(L"ANGBASE", 0.0);
    setShort(L"ANGDIR", 0);
    setShort(L"DIMZIN", 8);
    setShort(L"UNITMODE", 0);
    setShort(L"INSUNITS", 4);
    setShort(L"MEASUREMENT", 1);
    // Coordinate systems
    setPoint(L"UCSORG", origin, false, true);
    setPoint(L"UCSXDIR", xdir, false, true);
    setPoint(L"UCSYDIR", ydir, false, true);
    setShort(L"WORLDUCS", 1, true);
    setReal(L"ELEVATION", 0.0);
    setReal(L"THICKNESS", 0.0);
    // Current properties of new entities
    setString(L"CLAYER", L"0");
    setString(L"CECOLOR", L"BYLAYER");
    setString(L"CELTYPE", L"BYLAYER");
    setString(L"TEXTSTYLE", L"Standard");
    setReal(L"TEXTSIZE", 2.5);
    setShort(L"PDMODE", 0);
    // Defaults of the drawing commands: the last circle's radius, the polyline width, the
    // block last inserted, and attribute values asked on the command line (no dialog)
    setReal(L"CIRCLERAD", 0.0);
    setReal(L"PLINEWID", 0.0);
    setString(L"INSNAME", L"");
    setShort(L"ATTREQ", 1);
    setShort(L"ATTDIA", 0);
    setReal(L"PDSIZE", 0.0);
    setShort(L"TILEMODE", 1);
    // Editing commands: texts mirrored readable, COPY repeating, OFFSET through a point
    setShort(L"MIRRTEXT", 0);
    setShort(L"COPYMODE", 0);
    setReal(L"OFFSETDIST", -1.0);
    setShort(L"OFFSETERASE", 0);
    setShort(L"CVPORT", 2);
    // Drawing extents and limits
    const double limmax[3] = {420.0, 297.0, 0.0};
    setPoint(L"LIMMIN", origin, true);
    setPoint(L"LIMMAX", limmax, true);
    setPoint(L"EXTMIN", origin, false, true);
    setPoint(L"EXTMAX", limmax, false, true);
    // File names
    setString(L"DWGNAME", L"Drawing1.dwg", true);
    setString(L"DWGPREFIX", L"", true);
    setString(L"ACADVER", L"17.0s (LMS Tech)", true);
    setShort(L"DWGTITLED", 0, true);
}

const SysVarValue* SysVars::find(std::wstring_view name) const {
    auto it = vars_.find(upperAscii(name));
    return it == vars_.end() ? nullptr : &it->second;
}

int SysVars::set(std::wstring_view name, const resbuf& value) {
    auto it = vars_.find(upperAscii(name));
    if (it == vars_.end() || it->second.readOnly) return RTERROR;
    SysVarValue& var = it->second;
    switch (var.type) {
    case RTSHORT:
        if (value.restype == RTSHORT) var.integer = value.resval.rint;
        else if (value.restype == RTLONG && value.resval.rlong >= -32768 && value.resval.rlong <= 32767)
            var.integer = static_cast<short>(value.resval.rlong);
        else return RTERROR;
        return RTNORM;
    case RTREAL:
        if (value.restype == RTREAL || value.restype == RTANG) var.real = value.resval.rreal;
        else if (value.restype == RTSHORT) var.real = value.resval.rint;
        else return RTERROR;
        return RTNORM;
    case RTSTR:
        if (value.restype != RTSTR || !value.resval.rstring) return RTERROR;
        var.text = value.resval.rstring;
        return RTNORM;
    case RTPOINT:
    case RT3DPOINT:
        if (value.restype != RTPOINT && value.restype != RT3DPOINT) return RTERROR;
        var.point[0] = value.resval.rpoint[0];
        var.point[1] = value.resval.rpoint[1];
        var.point[2] = value.restype == RT3DPOINT ? value.resval.rpoint[2] : 0.0;
        return RTNORM;
    default: return RTERROR;
    }
}

void SysVars::setShort(std::wstring_view name, short v, bool readOnly) {
    SysVarValue& var = vars_[upperAscii(name)];
    var.type = RTSHORT;
    var.integer = v;
    var.readOnly = readOnly;
}

void SysVars::setReal(std::wstring_view name, double v, bool readOnly) {
    SysVarValue& var = vars_[upperAscii(name)];
    var.type = RTREAL;
    var.real = v;
    var.readOnly = readOnly;
}

void SysVars::setString(std::wstring_view name, std::wstring v, bool readOnly) {
    SysVarValue& var = vars_[upperAscii(name)];
    var.type = RTSTR;
    var.text = std::move(v);
    var.readOnly = readOnly;
}

void SysVars::setPoint(std::wstring_view name, const double p[3], bool twoD, bool readOnly) {
    SysVarValue& var = vars_[upperAscii(name)];
    var.type = twoD ? RTPOINT : RT3DPOINT;
    for (int i = 0; i < 3; ++i) var.point[i] = p[i];
    var.readOnly = readOnly;
}

}  // namespace host
