#include "psychro/airstate/tool/command_line.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace airstate_tool {
namespace {

// A whole argument as a finite decimal number; "nan", "inf" and trailing text are refused.
bool ParseNumber(const std::string& text, double* value) {
    if (text.empty()) return false;
    const char* begin = text.c_str();
    char* end = nullptr;
    errno = 0;
    const double parsed = std::strtod(begin, &end);
    if (end == begin || *end != '\0' || errno == ERANGE || !std::isfinite(parsed)) return false;
    *value = parsed;
    return true;
}

int FieldIndex(std::string_view name) {
    for (unsigned k = 0; k < kFieldCount; ++k)
        if (name == kFieldNames[k]) return static_cast<int>(k);
    return -1;
}

class Parser {
public:
    Parser(Request* request, std::string* problem) : request_(request), problem_(problem) {}

    bool Run(int argc, char** argv) {
        for (int a = 1; a < argc; ++a) {
            const std::string arg = argv[a];
            if (arg == "--help" || arg == "-h") {
                request_->help = true;
            } else if (arg == "--version") {
                request_->version = true;
            } else if (arg == "--json") {
                request_->json = true;
            } else if (arg.rfind("--", 0) != 0) {
                return Fail("unexpected argument '" + arg + "'");
            } else if (!Option(arg.substr(2), argc, argv, &a)) {
                return false;
            }
        }
        return true;
    }

private:
    // --NAME VALUE or --NAME=VALUE; *a moves past a separate value.
    bool Option(std::string name, int argc, char** argv, int* a) {
        std::string value;
        const auto eq = name.find('=');
        if (eq != std::string::npos) {
            value = name.substr(eq + 1);
            name.resize(eq);
        }
        const int field = FieldIndex(name);
        if (name != "B" && name != "variant" && field < 0)
            return Fail("unknown option '--" + name + "'");
        if (eq == std::string::npos) {
            if (*a + 1 >= argc) return Fail("--" + name + " needs a value");
            value = argv[++*a];
        }
        if (name == "variant") return SetVariant(value);
        double number = 0.0;
        if (!ParseNumber(value, &number))
            return Fail("--" + name + " value '" + value + "' is not a number");
        return name == "B" ? SetPressure(number) : SetKnown(static_cast<unsigned>(field), number);
    }

    bool SetVariant(const std::string& value) {
        if (variantGiven_) return Fail("--variant given twice");
        variantGiven_ = true;
        if (value == "supply") {
            request_->variant = Variant::Supply;
        } else if (value == "cooler") {
            request_->variant = Variant::Cooler;
        } else {
            return Fail("--variant must be supply or cooler, not '" + value + "'");
        }
        return true;
    }

    bool SetPressure(double kPa) {
        if (pressureGiven_) return Fail("--B given twice");
        if (!(kPa > 0.0)) return Fail("--B must be a positive pressure in kPa");
        pressureGiven_ = true;
        request_->B_kPa = kPa;
        return true;
    }

    bool SetKnown(unsigned field, double value) {
        const unsigned bit = 1u << field;
        if (request_->fields & bit)
            return Fail(std::string("--") + kFieldNames[field] + " given twice");
        request_->fields |= bit;
        request_->values[field] = value;
        return true;
    }

    bool Fail(std::string text) {
        *problem_ = std::move(text);
        return false;
    }

    Request* request_;
    std::string* problem_;
    bool pressureGiven_ = false;
    bool variantGiven_ = false;
};

}  // namespace

bool ParseCommandLine(int argc, char** argv, Request* request, std::string* problem) {
    return Parser(request, problem).Run(argc, argv);
}

}  // namespace airstate_tool
