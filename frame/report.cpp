#include "frame/report.h"

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"

namespace vrn2 {

void report(const Message& message) {
    if (!message.text) return;
    switch (message.channel) {
    case Channel::Fail: acdbFail(message.text); break;
    case Channel::Alert: acedAlert(message.text); break;
    case Channel::Print: acutPrintf(L"%s", message.text); break;
    }
}

int reportFailure(const Message& message, int status) {
    report(message);
    return status;
}

}  // namespace vrn2
