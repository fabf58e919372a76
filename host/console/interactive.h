// The console's command line at a terminal: "Command: ", a line typed, its value printed as
// the editor's command line prints it, until the end of input. A line that opens more
// parentheses than it closes is continued on the next ("(_> "). A line without a parenthesis
// is a command and its answers separated by spaces; "!NAME" shows a variable's value. An
// error is printed as "; error: MESSAGE" and the session goes on.
#pragma once

#include <istream>
#include <string>

namespace host::lisp {
class Interpreter;
}

namespace host::console {

// The AutoLISP text a typed line stands for: the line itself for an expression, the variable
// for "!NAME", and (command "WORD" ...) for a command with its answers. Empty for a blank line.
std::wstring expressionOfLine(const std::wstring& line);

// Whether a typed line is a command with its answers rather than an expression or "!NAME".
bool isCommandLine(const std::string& line);

// Whether text read so far ends inside a list or a string, so more lines belong to it.
bool needsMoreLines(const std::wstring& text);

// Reads and evaluates lines from input until it ends. Prompts and values go to standard
// output. Returns the number of lines that ended in an error.
int runInteractive(lisp::Interpreter& interpreter, std::istream& input);

}  // namespace host::console
