#include "host/console/interactive.h"

#include <cstdio>
#include <cwctype>
#include <iostream>

#include "host/lisp/interpreter.h"
#include "host/lisp/reader.h"
#include "host/output.h"
#include "host/text.h"

namespace host::console {
namespace {

std::wstring trimmed(const std::wstring& s) {
    size_t a = 0, b = s.size();
    while (a < b && std::iswspace(s[a])) ++a;
    while (b > a && std::iswspace(s[b - 1])) --b;
    return s.substr(a, b - a);
}

// A command answer as an AutoLISP string.
std::wstring quoted(const std::wstring& word) {
    std::wstring out = L"\"";
    for (wchar_t c : word) {
        if (c == L'"' || c == L'\\') out += L'\\';
        out += c;
    }
    return out + L"\"";
}

void prompt(const wchar_t* text) {
    emit(OutputKind::CommandLine, text);
    std::fflush(stdout);
}

// A command typed at the prompt shows its prompts, not the value of (command ...).
void evaluate(lisp::Interpreter& interpreter, const std::wstring& expression, bool showValue, int& errors) {
    try {
        lisp::ValuePtr v = interpreter.evalText(expression, L"<console>");
        if (showValue && !(v && v->kind == lisp::Kind::Void)) emit(OutputKind::CommandLine, lisp::printValue(v) + L"\n");
    } catch (lisp::LispError& e) {
        interpreter.offerToErrorHandler(e);
        emit(OutputKind::CommandLine, L"; error: " + e.message + L"\n");
        ++errors;
    }
}

}  // namespace

bool isCommandLine(const std::string& line) {
    std::wstring text = trimmed(fromUtf8(line));
    return !text.empty() && std::wstring(L"('\"!").find(text.front()) == std::wstring::npos;
}

std::wstring expressionOfLine(const std::wstring& line) {
    std::wstring text = trimmed(line);
    if (text.empty()) return {};
    if (!isCommandLine(toUtf8(text))) return text.front() == L'!' ? trimmed(text.substr(1)) : text;
    std::wstring out = L"(command";
    size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && std::iswspace(text[i])) ++i;
        size_t start = i;
        while (i < text.size() && !std::iswspace(text[i])) ++i;
        std::wstring word = text.substr(start, i - start);
        if (word == L"\"\"") out += L" \"\"";  // Enter
        else if (!word.empty()) out += L" " + quoted(word);
    }
    return out + L")";
}

bool needsMoreLines(const std::wstring& text) {
    lisp::ReadResult r = lisp::readAll(text);
    return r.error == L"malformed list on input" || r.error == L"malformed string on input";
}

int runInteractive(lisp::Interpreter& interpreter, std::istream& input) {
    int errors = 0;
    std::string line;
    std::wstring pending;
    prompt(L"Command: ");
    while (std::getline(input, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        pending += (pending.empty() ? L"" : L"\n") + fromUtf8(line);
        std::wstring expression = expressionOfLine(pending);
        if (!expression.empty() && needsMoreLines(expression)) {
            prompt(L"(_> ");
            continue;
        }
        bool showValue = !isCommandLine(toUtf8(pending));
        pending.clear();
        if (!expression.empty()) evaluate(interpreter, expression, showValue, errors);
        prompt(L"Command: ");
    }
    emit(OutputKind::CommandLine, L"\n");
    return errors;
}

}  // namespace host::console
