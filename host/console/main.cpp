// adscon: the headless console. It loads the module, opens a drawing, evaluates AutoLISP
// expressions and scripts as the editor's command line would, and saves the drawing.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "host/console/dialog_view.h"
#include "host/console/install_layout.h"
#include "host/console/interactive.h"
#include "host/db/database.h"
#include "host/dcl/dialog_script.h"
#include "host/file_names.h"
#include "host/lisp/interpreter.h"
#include "host/output.h"
#include "host/render/picture.h"
#include "host/runtime/screen.h"
#include "host/runtime/host.h"
#include "host/runtime/input.h"
#include "host/text.h"
#include "host/win/registry.h"

namespace fs = std::filesystem;
using namespace host;

namespace {

constexpr int kExitOk = 0;
constexpr int kExitLispError = 1;
constexpr int kExitUsage = 2;

const char kHelp[] = R"(Usage: adscon [OPTIONS] [SCRIPT.lsp | - ...]

Loads the Vrn2 module into a headless drawing editor, opens a drawing, evaluates AutoLISP
expressions and scripts in the order given ("-" reads a script from standard input), and
saves the drawing.

Options:
  --root DIR         installation root of the suite; sets the AutoLISP symbol _DRV to DIR
                     with a trailing separator (default: share/vrn2/ of the installation
                     adscon runs from, which holds dwglib/, datlib/ and system/)
  --drawing FILE     open this DXF drawing (default: a new, empty drawing)
  --save FILE        save the drawing as DXF when everything ran (a temporary file is
                     written and renamed, so a failed save leaves FILE as it was)
  --cwd DIR          current folder of the run: result files are written here
  --reg NAME=VALUE   set a string value under the suite's registry key
                     HKEY_LOCAL_MACHINE\SOFTWARE\Morvell\Vornex\6.0 (repeatable); the key
                     exists once any value under it is given
  --reg-file FILE    read NAME=VALUE lines (UTF-8) for the suite's registry key
  --module FILE      the module to load (default: lib/vrn2/Vrn2.so of the installation)
  --render FILE      at the end of the run, draw model space fitted to the picture (colours
                     by layer, line weights, texts, block contents) with the run's temporary
                     screen graphics over it (in pixels from the top left corner) into FILE:
                     a PNG, SVG or PDF picture by its extension; prints "Picture: FILE"
  --show-dialogs     print each dialog as it closes: its title and its tiles with their
                     labels and values at that moment
  -e EXPR            evaluate an AutoLISP expression and echo its value as the editor's
                     command line does (repeatable)
  -h, --help         show this text
  --version          show the version
Values may also be written --OPTION=VALUE.

Output: what the module and the scripts print on the command line goes to standard output
as printed; every alert is a line "[alert] TEXT"; an application error is a line
"Application Vrn2 ERROR: TEXT". An AutoLISP error goes to standard error as
"FILE:LINE: ; error: MESSAGE", FILE being the script (or the file it loaded, "<stdin>",
"-e") and LINE where the top-level form that failed starts; it stops the run. A function
the script bound to *error* is called first with MESSAGE, as in the editor.

AutoLISP: numbers, strings with \\ \" \n \r \t \e and octal escapes, symbols, lists, quote,
dotted pairs, comments (; and ;| |;); a quoted lambda list and a quoted name of a built-in
are functions.
  control    setq defun lambda function if cond progn while repeat foreach and or eval
             apply mapcar set boundp read exit quit *error* vl-catch-all-apply
             vl-catch-all-error-p vl-catch-all-error-message vl-load-com
  numbers    + - * / 1+ 1- abs fix float rem sqrt sin cos atan exp log expt min max gcd pi
             = /= < > <= >= zerop minusp numberp logand logior lsh boole ~
  lists      car cdr cadr cddr caar cdar caddr cadar cdddr cons list append reverse length
             nth last member assoc subst null not atom listp eq equal type vl-consp
             vl-position vl-remove vl-sort vl-every vl-some vl-remove-if vl-remove-if-not
             vl-member-if vl-member-if-not
  strings    strcat strlen substr strcase itoa atoi atof chr ascii wcmatch vl-string-search
             vl-string-position vl-string-subst vl-string-translate vl-string-trim
             vl-string-left-trim vl-string-right-trim vl-string->list vl-list->string
             vl-princ-to-string vl-prin1-to-string
  output     princ prin1 print terpri alert (princ, prin1 and print write to a file too)
  files      open (modes "r" "w" "a"; encoding "utf8" or "utf16", else the drawing's code
             page; a byte-order mark decides when reading) close read-line write-line
             read-char write-char findfile load vl-filename-base vl-filename-directory
             vl-filename-extension vl-file-directory-p vl-directory-files getenv ver.
             findfile and load look in the folder of the file being loaded, the current
             folder, the installation root, then the folders of the environment variable
             ACAD (separated by ; or :); load adds ".lsp" to a name without extension.
  units      rtos distof (modes 1 scientific, 2 decimal, 3 engineering, 4 architectural,
             5 fractional) angtos (0 degrees, 1 d/m/s, 2 grads, 3 radians, 4 surveyor's)
             cvunit (inch foot yard mile mm cm m km, radian degree grad, kg g lb,
             second minute hour day)
  geometry   polar angle distance inters trans textbox (approximate: a character is 0.6 of
             the height wide)
  system     getvar setvar command (a command that fails cancels the script)
  input      initget getreal getint getdist getangle getcorner getkword getstring getpoint
             entsel nentsel
  drawing    entlast entnext entget entmake entmod entdel handent regapp tblsearch tblnext
             tblobjname xdroom ssget sslength ssname ssadd ssdel ssmemb
and every function the module registers, called with its arguments converted as the editor
converts them (a list of two or three numbers arrives as a point, integers as short
integers, nil as nil, T as T).

Headless forms:
  (host-dialog NAME ACTIONS)  queue actions for the next time dialog NAME starts. ACTIONS is
                              a list of (set KEY VALUE): a user's edit or click, the value
                              changes and the tile's action runs with the editor's reason;
                              (press KEY): a click on a button; (select KEY "I J"): a choice
                              of list items. They are applied in order; the dialog is
                              cancelled when they run out, or at once when nothing is queued.
                              Each start of NAME uses the next queued list. NAME and KEY
                              are strings: dialog names and tile keys are case-sensitive.
  (host-entsel ENAME POINT)   queue the answer of the next entity pick
  (host-getpoint POINT)       queue the answer of the next point pick
  (host-input VALUE ...)      queue replies typed at the prompts of the get-functions
                              (acedGetReal, acedGetInt, acedGetDist, acedGetAngle,
                              acedGetCorner, acedGetKword, acedGetString and the AutoLISP
                              functions of the same names). Each request takes the next
                              reply, whatever kind it asks for: a number, a string (typed
                              text: a number, a keyword of initget, "X,Y" for a point), a
                              point as a list of two or three numbers, or nil for a bare
                              Enter. A reply the request refuses prints the editor's message
                              (for example "Requires numeric value." or "Value must be
                              positive and nonzero.") and the request takes the next one.
  (host-window TITLE ACTIONS) act now on the open modeless window TITLE (a dialog the module
                              created, such as "单位换算"). ACTIONS is a list, applied in order,
                              of (select CONTROL INDEX): choose item INDEX (from 0) of a combo
                              box or list box; (set CONTROL TEXT): type TEXT into an edit, whose
                              change handler runs; (click CONTROL): click a button or radio
                              button. Each runs the window's handler as the control's
                              notification would. A message box the window shows is printed
                              like an alert. CONTROL is the control's resource name, a string.
  (host-window-text TITLE CONTROL)
                              the text a control of window TITLE shows (an edit's contents, a
                              label, the selected item of a list), or nil when the window or
                              the control does not exist
  An empty pick or reply queue answers as a cancelled request (RTCAN; in AutoLISP the
  error "Function cancelled").

Without a script or -e and with a terminal on standard input, adscon shows the command
line: at "Command: " a typed expression is evaluated and its value printed, "!NAME" shows a
variable, and other text runs a command with its answers separated by spaces (LINE 0,0 10,0 "").
An error is printed as "; error: MESSAGE" and the session goes on; end of input (Ctrl+D)
ends it, and the drawing is saved and rendered as after a script.

Exit status: 0 only when everything asked happened. 1 when an AutoLISP error stopped a
script or an -e expression (a failing command included), when queued dialog actions name a
dialog that never started or a tile it does not have, or when a queued pick or typed reply
was never used (each is reported on standard error). 2 for bad options or unreadable files
(drawing, script, module, save).
)";

struct Step {
    bool isExpression;
    std::string text;  // expression, or script path
};

struct Options {
    std::string root;
    std::string drawing;
    std::string save;
    std::string cwd;
    std::string module;
    std::string render;
    bool showDialogs = false;
    std::vector<std::pair<std::string, std::string>> registry;
    std::vector<Step> steps;
};

int usageError(const std::string& message) {
    std::cerr << "adscon: " << message << "\nTry 'adscon --help'.\n";
    return kExitUsage;
}

bool readFile(const std::string& path, std::string& out) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream ss;
    ss << in.rdbuf();
    out = ss.str();
    return true;
}

// A script file, or standard input for "-".
bool readScript(const std::string& path, std::string& out) {
    if (path != "-") return readFile(path, out);
    std::ostringstream ss;
    ss << std::cin.rdbuf();
    out = ss.str();
    return true;
}

bool addRegistryLine(const std::string& line, Options& o) {
    auto eq = line.find('=');
    if (eq == std::string::npos || eq == 0) return false;
    o.registry.emplace_back(line.substr(0, eq), line.substr(eq + 1));
    return true;
}

// Returns -1 when the options are fine, else the exit status.
int parseOptions(int argc, char** argv, Options& o) {
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        // --OPTION=VALUE is the same as --OPTION VALUE, as airstate takes it.
        std::optional<std::string> inlineValue;
        if (size_t eq = a.find('='); a.rfind("--", 0) == 0 && eq != std::string::npos) {
            inlineValue = a.substr(eq + 1);
            a.resize(eq);
        }
        auto value = [&](std::string& into) {
            if (inlineValue) {
                into = *std::exchange(inlineValue, std::nullopt);
                return true;
            }
            if (i + 1 >= argc) return false;
            into = argv[++i];
            return true;
        };
        std::string v;
        if (a == "-h" || a == "--help") {
            std::cout << kHelp;
            return kExitOk;
        } else if (a == "--version") {
            std::cout << "adscon " << VRN2_VERSION << "\n";
            return kExitOk;
        } else if (a == "--show-dialogs") {
            o.showDialogs = true;
        } else if (a == "--render") {
            if (!value(o.render)) return usageError("--render needs a file");
            if (!render::knownPictureType(o.render)) return usageError("--render: a picture is a .png, .svg or .pdf file");
            o.render = fs::absolute(o.render).string();  // before --cwd moves the current folder
        } else if (a == "--root") {
            if (!value(o.root)) return usageError("--root needs a folder");
        } else if (a == "--drawing") {
            if (!value(o.drawing)) return usageError("--drawing needs a file");
        } else if (a == "--save") {
            if (!value(o.save)) return usageError("--save needs a file");
        } else if (a == "--cwd") {
            if (!value(o.cwd)) return usageError("--cwd needs a folder");
        } else if (a == "--module") {
            if (!value(o.module)) return usageError("--module needs a file");
        } else if (a == "--reg") {
            if (!value(v) || !addRegistryLine(v, o)) return usageError("--reg needs NAME=VALUE");
        } else if (a == "--reg-file") {
            std::string text;
            if (!value(v)) return usageError("--reg-file needs a file");
            if (!readFile(v, text)) return usageError("cannot read registry file " + v);
            std::istringstream lines(text);
            std::string line;
            while (std::getline(lines, line)) {
                if (!line.empty() && line.back() == '\r') line.pop_back();
                if (line.empty() || line[0] == '#') continue;
                if (!addRegistryLine(line, o)) return usageError("bad line in " + v + ": " + line);
            }
        } else if (a == "-e") {
            if (!value(v)) return usageError("-e needs an expression");
            o.steps.push_back({true, v});
        } else if (a.size() > 1 && a[0] == '-') {
            return usageError("unknown option " + a);
        } else {
            o.steps.push_back({false, a});
        }
        if (inlineValue) return usageError(a + " takes no value");
    }
    return -1;
}

// The name a step's errors are reported under: the script's path, "<stdin>", or "-e".
std::wstring sourceName(const Step& step) {
    if (step.isExpression) return L"-e";
    return step.text == "-" ? L"<stdin>" : fromUtf8(step.text);
}

// "FILE:LINE: ; error: MESSAGE" on standard error; the user's *error* function, if any, has
// seen the message first, as in the editor.
void reportError(lisp::Interpreter& in, lisp::LispError& e, const Step& step) {
    in.offerToErrorHandler(e);
    std::wstring where = e.source.empty() ? sourceName(step) : e.source;
    int line = e.line > 0 ? e.line : 1;
    std::fflush(stdout);
    std::cerr << toUtf8(where) << ":" << line << ": ; error: " << toUtf8(e.message) << "\n";
}

// Evaluates one step; false when an AutoLISP error stopped it.
bool runStep(lisp::Interpreter& in, const Step& step, const std::string& scriptText) {
    try {
        if (step.isExpression) {
            lisp::ValuePtr v = in.evalText(fromUtf8(step.text), L"-e");
            std::wstring shown = lisp::printValue(v);
            if (!(v && v->kind == lisp::Kind::Void)) emit(OutputKind::CommandLine, shown + L"\n");
        } else {
            in.evalText(fromUtf8(scriptText), sourceName(step));
        }
        return true;
    } catch (lisp::LispError& e) {
        reportError(in, e, step);
        return false;
    }
}

// Whatever was queued for the run and never used: each is a thing asked that did not happen.
bool everythingQueuedWasUsed() {
    bool used = true;
    auto warn = [&](size_t count, const char* what) {
        if (count == 0) return;
        used = false;
        std::cerr << "adscon: " << count << " queued " << what << (count == 1 ? " was" : "s were") << " not used\n";
    };
    for (auto& name : pendingDialogNames()) {
        used = false;
        std::cerr << "adscon: actions queued for dialog " << toUtf8(name) << " were not used\n";
    }
    if (size_t skipped = skippedDialogActions()) {
        used = false;
        std::cerr << "adscon: " << skipped << " queued dialog " << (skipped == 1 ? "action" : "actions")
                  << " could not be applied\n";
    }
    size_t unused = pendingTypedReplies();
    if (unused) {
        used = false;
        std::cerr << "adscon: " << unused << " queued typed " << (unused == 1 ? "reply was" : "replies were")
                  << " not used\n";
    }
    warn(pendingPointPicks(), "point pick");
    warn(pendingEntityPicks(), "entity pick");
    return used;
}

}  // namespace

int main(int argc, char** argv) {
    Options o;
    if (int status = parseOptions(argc, argv, o); status >= 0) return status;

    std::vector<std::string> scripts(o.steps.size());
    for (size_t i = 0; i < o.steps.size(); ++i)
        if (!o.steps[i].isExpression && !readScript(o.steps[i].text, scripts[i]))
            return usageError("cannot read script " + o.steps[i].text);

    console::InstallLayout layout =
        console::findInstallLayout(console::programFolder(), VRN2_SOURCE_ROOT, VRN2_DEFAULT_MODULE);
    std::string root = o.root.empty() ? layout.root : o.root;
    if (root.empty()) return usageError("no installation tree found beside adscon; give --root");
    if (!fs::is_directory(root)) return usageError("installation root is not a folder: " + root);
    if (root.back() != '/' && root.back() != '\\') root += '/';

    for (auto& [name, value] : o.registry) win::setRegistryValue(win::kSuiteKey, fromUtf8(name), fromUtf8(value));

    std::unique_ptr<db::Database> database;
    std::wstring drawingName;
    if (!o.drawing.empty()) {
        std::wstring error;
        database = db::Database::load(o.drawing, error);
        if (!database) return usageError("cannot open drawing " + o.drawing + ": " + toUtf8(error));
        // What the reader repaired on the way in, as the editor reports it when it opens a file.
        for (const auto& warning : database->warnings()) std::cout << "Warning: " << toUtf8(warning) << "\n";
        drawingName = nameOf(fs::absolute(o.drawing));
    } else {
        database = std::make_unique<db::Database>();
    }
    if (!o.save.empty() && drawingName.empty()) drawingName = nameOf(fs::absolute(o.save));

    if (!o.cwd.empty()) {
        std::error_code ec;
        fs::current_path(o.cwd, ec);
        if (ec) return usageError("cannot enter folder " + o.cwd + ": " + ec.message());
    }

    Host& h = Host::instance();
    Document& doc = h.openDocument(drawingName, std::move(database));
    doc.symbols()[L"_DRV"] = lisp::makeStr(fromUtf8(root));

    std::string modulePath = o.module.empty() ? layout.module : o.module;
    std::wstring error;
    if (!h.loadModule(modulePath, error)) {
        std::cerr << "adscon: " << toUtf8(error) << "\n";
        return kExitUsage;
    }

    if (o.showDialogs)
        dcl::onDialogClosed([](const dcl::DialogRecord& d) { emit(OutputKind::CommandLine, L"\n" + console::dialogView(d)); });
    lisp::Interpreter interpreter;
    int status = kExitOk;
    for (size_t i = 0; i < o.steps.size(); ++i) {
        if (!runStep(interpreter, o.steps[i], scripts[i])) {
            status = kExitLispError;
            break;
        }
    }
    // Nothing to run and a person at the terminal: the command line, until end of input.
    if (o.steps.empty() && isatty(STDIN_FILENO)) console::runInteractive(interpreter, std::cin);
    if (!everythingQueuedWasUsed()) status = kExitLispError;

    if (!o.save.empty()) {
        if (status != kExitOk) {
            std::cerr << "adscon: drawing not saved: the run failed\n";
        } else if (!h.current().database().save(o.save, error)) {
            std::cerr << "adscon: " << toUtf8(error) << "\n";  // the error names the file
            status = kExitUsage;
        }
    }
    if (!o.render.empty()) {
        // The picture is made whatever the outcome: it shows the drawing as the run left it.
        fs::path picture = o.render;
        if (render::renderPicture(h.current().database(), screenVectors(), picture, error)) {
            std::cout << "Picture: " << picture.string() << "\n";
        } else {
            std::cerr << "adscon: " << toUtf8(error) << "\n";
            status = kExitUsage;
        }
    }
    h.unloadAllModules();
    h.closeAllDocuments();
    std::fflush(stdout);
    return status;
}
