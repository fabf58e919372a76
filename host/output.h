// Where the host sends what the module prints: command-line text, alert boxes and application
// error messages. The console writes them to standard output; tests and tools capture them.
#pragma once

#include <cstdarg>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

enum class OutputKind { CommandLine, Alert, Failure };

using OutputSink = std::function<void(OutputKind, std::wstring_view text)>;

// Replaces the sink and returns the previous one. The default sink writes command-line text
// as printed, each alert as a line "[alert] TEXT" and each failure as the editor's line
// "Application NAME ERROR: TEXT", all UTF-8 on standard output.
OutputSink setOutputSink(OutputSink sink);
void emit(OutputKind kind, std::wstring_view text);
OutputSink defaultOutputSink();

// The application name used in failure lines ("Vrn2" once the module is loaded).
void setApplicationName(std::wstring name);
std::wstring applicationName();

// Collects everything emitted while it lives; restores the previous sink when destroyed.
class OutputCapture {
public:
    OutputCapture();
    ~OutputCapture();
    OutputCapture(const OutputCapture&) = delete;
    OutputCapture& operator=(const OutputCapture&) = delete;

    const std::wstring& commandLine() const { return commandLine_; }
    const std::vector<std::wstring>& alerts() const { return alerts_; }
    const std::vector<std::wstring>& failures() const { return failures_; }
    void clear();

private:
    OutputSink previous_;
    std::wstring commandLine_;
    std::vector<std::wstring> alerts_;
    std::vector<std::wstring> failures_;
};

// printf-style formatting with the platform's wide conventions (%s and %c are wide).
std::wstring formatWide(const wchar_t* format, va_list args);

}  // namespace host
