// Moving, rotating, scaling and mirroring entities, and placing a block's entities where a
// block reference shows them: an affine map of model space applied to the groups of entity
// lists. Points in world coordinates are mapped as they are; points and
// angles in an entity's own coordinates go to the world, through the map and back into the
// coordinates of the mapped extrusion, so an entity that does not lie flat in XY keeps its
// place. A reflection reverses the sense of arcs and bulges, and texts either stay readable
// (their place mirrored) or are written backwards, as MIRRTEXT chooses.
#pragma once

#include <vector>

#include "adsdef.h"

namespace host::cmd {

// p' = m p + t. The editing commands make similarities: a uniform scale, a rotation about a
// vertical axis, a reflection in a vertical plane, a translation. A block reference may scale
// X, Y and Z each by its own factor before it turns the block about Z.
struct Transform {
    double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    double t[3] = {0, 0, 0};

    static Transform translation(const double d[3]);
    static Transform rotation(const double base[3], double radians);
    static Transform scaling(const double base[3], double factor);
    // Reflection in the vertical plane through a and b (which differ in X or Y).
    static Transform mirror(const double a[3], const double b[3]);
    // The block's base point goes to AT; the block is scaled by SCALE along X, Y and Z and
    // turned by ROTATION radians about Z.
    static Transform placing(const double base[3], const double at[3], const double scale[3], double rotation);

    void point(const double p[3], double out[3]) const;
    void vector(const double v[3], double out[3]) const;
    bool reflects() const;   // the map turns the sense of rotation over
    // Lengths in plan change alike in every direction: circles stay circles.
    bool similarInPlan() const;
};

// Transforms an entity in place: lists[0] is the entity's list, the lists after it those of
// its parts (the ATTRIBs of an INSERT, the VERTEXes and SEQEND of a POLYLINE). False, with
// the lists unchanged, for a kind whose geometry is not known here (DIMENSION, HATCH, ...),
// and, under a map that is not similar in plan, for all but single-line texts (TEXT, ATTDEF,
// ATTRIB), which take their height and width factor from how the map stretches them.
bool transformEntity(std::vector<resbuf*>& lists, const Transform& t, bool mirrorText);

// A world point in the coordinates of an entity with the given extrusion.
void worldToOwn(const double world[3], const double extrusion[3], double own[3]);

// Whether transformEntity knows the geometry of an entity type.
bool canTransform(const wchar_t* type);

}  // namespace host::cmd
