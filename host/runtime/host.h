// The headless host: its documents, the modules it has loaded, and the invocation of the
// external functions those modules register. There is one Host per session (host/session.h).
#pragma once

#include <filesystem>
#include <functional>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "acdocman.h"
#include "adsdef.h"
#include "host/db/sysvars.h"
#include "host/runtime/lisp_value.h"
#include "host/session.h"
#include "rxdefs.h"

namespace host {

namespace db {
class Database;
}

struct RegisteredFunction {
    std::wstring name;  // as registered, case kept
    short code = 0;
    struct Module* module = nullptr;
};

class Document : public AcApDocument {
public:
    Document(std::wstring fileName, std::unique_ptr<db::Database> database);
    ~Document() override;
    const ACHAR* fileName() const override { return fileName_.c_str(); }
    void setFileName(std::wstring name);

    db::Database& database() { return *database_; }
    SysVars& sysvars() { return sysvars_; }

    // External functions registered in this document's AutoLISP; keys are upper-case names.
    std::map<std::wstring, RegisteredFunction>& functions() { return functions_; }
    // This document's AutoLISP symbols; keys are upper-case names.
    std::map<std::wstring, lisp::ValuePtr>& symbols() { return symbols_; }

    // State of this drawing that a part of the host above the runtime keeps (the views ZOOM
    // goes back to), made on first use and gone with the document.
    template <class P>
    P& data() {
        return data_.get<P>();
    }

private:
    std::wstring fileName_;
    std::unique_ptr<db::Database> database_;
    SysVars sysvars_;
    std::map<std::wstring, RegisteredFunction> functions_;
    std::map<std::wstring, lisp::ValuePtr> symbols_;
    PartStore data_;
};

struct Module {
    std::wstring path;
    std::wstring name;  // file name without folder and extension
    void* handle = nullptr;
    AcRxEntryPointFn entry = nullptr;
    int apiVersion = 0;
};

// What one call of an external function gave back.
struct CallResult {
    bool defined = false;          // false: no module registered that name
    lisp::ValuePtr value;          // nil when the function set no result
    int entryResult = 0;           // what the entry point returned
};

class Host {
public:
    // The Host of the active session.
    static Host& instance();

    // Documents. Opening makes the document current and sends each loaded module
    // kLoadDwgMsg; closing sends kUnloadDwgMsg and tells the document reactors.
    Document& openDocument(std::wstring fileName, std::unique_ptr<db::Database> database);
    Document& openDocument(std::wstring fileName);  // a new, empty drawing
    void closeDocument(Document& doc);
    void closeAllDocuments();
    Document& current();
    bool hasDocument() const { return current_ != nullptr; }
    void makeCurrent(Document& doc);
    const std::vector<std::unique_ptr<Document>>& documents() const { return documents_; }

    // Modules. Loading sends kInitAppMsg and then kLoadDwgMsg for every open document;
    // unloading sends kUnloadDwgMsg for every open document and then kUnloadAppMsg.
    Module* loadModule(const std::filesystem::path& path, std::wstring& error);
    void unloadModule(Module* module);
    void unloadAllModules();
    const std::vector<std::unique_ptr<Module>>& modules() const { return modules_; }
    void sendMessage(Module& module, AcRx::AppMsgCode msg, void* pkt);

    // Calls the external function NAME of the current document with the given arguments.
    CallResult invoke(std::wstring_view name, const std::vector<lisp::ValuePtr>& args);

    // Runs BODY as the invocation of function CODE with the given arguments: what the host
    // does around a module's kInvkSubrMsg, offered to tests that call a dispatcher directly.
    // The invocation ends on every path: an exception from BODY passes on after it.
    CallResult runInvocation(short code, const std::vector<lisp::ValuePtr>& args,
                             const std::function<int()>& body);

    // State of the invocation under way (acedGetFunCode, acedGetArgs, acedRetXxx).
    struct Invocation {
        short code = 0;
        resbuf* args = nullptr;
        lisp::ValuePtr result;
    };
    Invocation* invocation() { return invocations_.empty() ? nullptr : &invocations_.back(); }

    // The module whose message is being handled; functions it defines belong to it.
    Module* activeModule() const { return activeModule_; }

    // Document manager reactors (acDocManager).
    void addReactor(AcApDocManagerReactor* reactor);
    void removeReactor(AcApDocManagerReactor* reactor);

    // A seam for tests: the next acedDefun of NAME answers the given result instead.
    void overrideDefunResult(std::wstring name, int result);
    std::optional<int> takeDefunOverride(std::wstring_view name);

private:
    friend class PartStore;
    Host();
    class CurrentDocumentScope;
    class ActiveModuleScope;
    class InvocationFrame;
    // The one place the current document changes: the database layer follows it.
    void setCurrent(Document* doc);
    // Sends MSG to MODULE's entry point; an exception out of the module is reported there.
    int callEntry(Module& module, AcRx::AppMsgCode msg, void* pkt);

    std::vector<std::unique_ptr<Document>> documents_;
    Document* current_ = nullptr;
    std::vector<std::unique_ptr<Module>> modules_;
    std::deque<Invocation> invocations_;
    Module* activeModule_ = nullptr;
    std::vector<AcApDocManagerReactor*> reactors_;
    std::map<std::wstring, int> defunOverrides_;
};

// The database of the current document.
db::Database& currentDatabase();

}  // namespace host

namespace host {
// What a module told the dynamic linker about itself at start-up.
bool moduleUnlocked(void* appId);
bool moduleMDIAware(void* appId);
}  // namespace host
