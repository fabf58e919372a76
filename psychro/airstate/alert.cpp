#include "psychro/airstate/alert.h"

#include <mutex>
#include <utility>

namespace airstate {
namespace {

std::mutex g_sinkMutex;
AlertSink g_sink;

}  // namespace

AlertSink SetAlertSink(AlertSink sink) {
    std::lock_guard lock(g_sinkMutex);
    return std::exchange(g_sink, std::move(sink));
}

void Alert(const wchar_t* text) {
    AlertSink sink;
    {
        std::lock_guard lock(g_sinkMutex);
        sink = g_sink;
    }
    if (sink) sink(text);
}

AlertCapture::AlertCapture()
    : previous_(SetAlertSink([this](const wchar_t* text) { alerts_.emplace_back(text); })) {}

AlertCapture::~AlertCapture() { SetAlertSink(std::move(previous_)); }

}  // namespace airstate
