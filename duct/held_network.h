// The traced network of the current drawing, kept from one trace to the next.
#pragma once

#include "duct/duct_segment.h"
#include "frame/doc_data.h"

namespace vrn2::duct {

inline DuctNetwork& heldNetwork() { return documentState<DuctNetwork>(); }

}  // namespace vrn2::duct
