#include "host/output.h"

#include <cstdarg>
#include <cstdio>
#include <cwchar>
#include <mutex>

#include "host/session.h"
#include "host/text.h"

namespace host {
namespace {

// Where this session's output goes. Module threads may print, so the sink is locked.
struct OutputState {
    std::mutex mutex;
    OutputSink sink = defaultOutputSink();
    std::wstring applicationName = L"Vrn2";
};

OutputState& state() { return sessionPart<OutputState>(); }

// The platform's wide printf reads %s and %c as wide arguments; glibc reads them as narrow.
// Rewrite the bare forms to their explicit wide spelling before formatting.
std::wstring widenFormat(const wchar_t* format) {
    std::wstring out;
    for (const wchar_t* p = format; *p; ++p) {
        out += *p;
        if (*p != L'%') continue;
        ++p;
        if (*p == L'%') {
            out += *p;
            continue;
        }
        while (*p && std::wcschr(L"-+ #0123456789.*", *p)) out += *p++;
        bool hasLength = false;
        while (*p && std::wcschr(L"hlLqjzt", *p)) {
            hasLength = true;
            out += *p++;
        }
        if (!*p) break;
        if (!hasLength && (*p == L's' || *p == L'c')) out += L'l';
        if (!hasLength && (*p == L'S' || *p == L'C')) {
            out += static_cast<wchar_t>(*p == L'S' ? L's' : L'c');
            continue;
        }
        out += *p;
    }
    return out;
}

}  // namespace

OutputSink defaultOutputSink() {
    return [](OutputKind kind, std::wstring_view text) {
        std::string line;
        switch (kind) {
        case OutputKind::CommandLine:
            line = toUtf8(text);
            break;
        case OutputKind::Alert:
            line = "[alert] " + toUtf8(text) + "\n";
            break;
        case OutputKind::Failure:
            line = "Application " + toUtf8(applicationName()) + " ERROR: " + toUtf8(text);
            if (line.empty() || line.back() != '\n') line += '\n';
            break;
        }
        std::fwrite(line.data(), 1, line.size(), stdout);
        std::fflush(stdout);
    };
}

OutputSink setOutputSink(OutputSink sink) {
    OutputState& s = state();
    std::lock_guard lock(s.mutex);
    OutputSink previous = std::move(s.sink);
    s.sink = std::move(sink);
    return previous;
}

void emit(OutputKind kind, std::wstring_view text) {
    OutputSink sink;
    {
        OutputState& s = state();
        std::lock_guard lock(s.mutex);
        sink = s.sink;
    }
    if (sink) sink(kind, text);
}

void setApplicationName(std::wstring name) {
    OutputState& s = state();
    std::lock_guard lock(s.mutex);
    s.applicationName = std::move(name);
}

std::wstring applicationName() {
    OutputState& s = state();
    std::lock_guard lock(s.mutex);
    return s.applicationName;
}

OutputCapture::OutputCapture() {
    previous_ = setOutputSink([this](OutputKind kind, std::wstring_view text) {
        switch (kind) {
        case OutputKind::CommandLine: commandLine_ += text; break;
        case OutputKind::Alert: alerts_.emplace_back(text); break;
        case OutputKind::Failure: failures_.emplace_back(text); break;
        }
    });
}

OutputCapture::~OutputCapture() { setOutputSink(std::move(previous_)); }

void OutputCapture::clear() {
    commandLine_.clear();
    alerts_.clear();
    failures_.clear();
}

std::wstring formatWide(const wchar_t* format, va_list args) {
    std::wstring fmt = widenFormat(format);
    std::wstring buffer(256, L'\0');
    for (;;) {
        va_list copy;
        va_copy(copy, args);
        int n = std::vswprintf(buffer.data(), buffer.size(), fmt.c_str(), copy);
        va_end(copy);
        if (n >= 0) {
            buffer.resize(static_cast<size_t>(n));
            return buffer;
        }
        if (buffer.size() > (1u << 22)) return L"";  // a format glibc cannot render
        buffer.resize(buffer.size() * 4);
    }
}

}  // namespace host
