// The library's one message to the user: the alert of DewPointFromPressure for a pressure
// outside the temperature bands. Where it goes is the caller's choice: the module shows it in
// the editor's alert box, the airstate tool puts it in its report. Without a sink it is dropped.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace airstate {

using AlertSink = std::function<void(const wchar_t* text)>;

// Replaces the sink and returns the previous one; an empty sink drops alerts.
AlertSink SetAlertSink(AlertSink sink);
void Alert(const wchar_t* text);

// Collects the alerts raised while it lives; the previous sink comes back when it goes.
class AlertCapture {
public:
    AlertCapture();
    ~AlertCapture();
    AlertCapture(const AlertCapture&) = delete;
    AlertCapture& operator=(const AlertCapture&) = delete;

    const std::vector<std::wstring>& alerts() const { return alerts_; }

private:
    AlertSink previous_;
    std::vector<std::wstring> alerts_;
};

}  // namespace airstate
