#include "coil/cooler_dialog_files.h"

#include "acedads.h"

namespace vrn2 {

AlertSink alertBox() {
    return [](const wchar_t* text) { acedAlert(text); };
}

}  // namespace vrn2
