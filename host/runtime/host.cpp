#include "host/runtime/host.h"

#include <dlfcn.h>

#include <algorithm>
#include <clocale>

#include "acutads.h"
#include "adscodes.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/database.h"
#include "host/db/header_sync.h"
#include "host/file_names.h"
#include "host/output.h"
#include "host/runtime/convert.h"
#include "host/text.h"
#include "host/win/window_registry.h"

namespace host {

// The drawing's header variables become the document's system variables, and the database
// writes them back when it is saved.
Document::Document(std::wstring fileName, std::unique_ptr<db::Database> database)
    : database_(std::move(database)) {
    setFileName(std::move(fileName));
    database_->attachSysVars(&sysvars_);
    db::loadSysVars(*database_, sysvars_);
}

Document::~Document() = default;

void Document::setFileName(std::wstring name) {
    fileName_ = std::move(name);
    std::filesystem::path p = pathOf(fileName_);
    std::wstring base = nameOf(p.filename());
    std::wstring folder = p.has_parent_path() ? nameOf(p.parent_path()) + L"/" : L"";
    sysvars_.setString(L"DWGNAME", base.empty() ? L"Drawing1.dwg" : base, true);
    sysvars_.setString(L"DWGPREFIX", folder, true);
    sysvars_.setShort(L"DWGTITLED", base.empty() ? 0 : 1, true);
}

// Makes a document current for a while (a message sent for each open document, a document
// being closed) and gives the previous one back on every path.
class Host::CurrentDocumentScope {
public:
    CurrentDocumentScope(Host& host, Document* doc) : host_(host), previous_(host.current_) {
        host_.setCurrent(doc);
    }
    ~CurrentDocumentScope() { host_.setCurrent(previous_); }
    CurrentDocumentScope(const CurrentDocumentScope&) = delete;
    CurrentDocumentScope& operator=(const CurrentDocumentScope&) = delete;
    // The document to give back instead (the previous one was closed meanwhile).
    void restoreTo(Document* doc) { previous_ = doc; }

private:
    Host& host_;
    Document* previous_;
};

// The module whose message is under way; functions it defines belong to it.
class Host::ActiveModuleScope {
public:
    ActiveModuleScope(Host& host, Module* module) : host_(host), previous_(host.activeModule_) {
        host_.activeModule_ = module;
    }
    ~ActiveModuleScope() { host_.activeModule_ = previous_; }
    ActiveModuleScope(const ActiveModuleScope&) = delete;
    ActiveModuleScope& operator=(const ActiveModuleScope&) = delete;

private:
    Host& host_;
    Module* previous_;
};

// One entry of the invocation stack: its argument list is released and the entry removed on
// every path.
class Host::InvocationFrame {
public:
    InvocationFrame(Host& host, short code, const std::vector<lisp::ValuePtr>& args) : host_(host) {
        Invocation inv;
        inv.code = code;
        inv.args = argsToResbuf(args);
        inv.result = lisp::nil();
        host_.invocations_.push_back(inv);
    }
    ~InvocationFrame() {
        acutRelRb(host_.invocations_.back().args);
        host_.invocations_.pop_back();
    }
    InvocationFrame(const InvocationFrame&) = delete;
    InvocationFrame& operator=(const InvocationFrame&) = delete;
    Invocation& invocation() { return host_.invocations_.back(); }

private:
    Host& host_;
};

// Wide-character streams (fwprintf, fgetws) read and write UTF-8, the host's text encoding.
Host::Host() { std::setlocale(LC_CTYPE, "C.UTF-8"); }

Host& Host::instance() { return sessionPart<Host>(); }

Document& Host::current() { return *current_; }

void Host::setCurrent(Document* doc) {
    current_ = doc;
    db::setCurrentDb(doc ? &doc->database() : nullptr);
}

void Host::makeCurrent(Document& doc) {
    setCurrent(&doc);
    for (auto* r : std::vector(reactors_))
        guarded("AcApDocManagerReactor::documentBecameCurrent", [&] { r->documentBecameCurrent(&doc); });
}

Document& Host::openDocument(std::wstring fileName, std::unique_ptr<db::Database> database) {
    if (!database) database = std::make_unique<db::Database>();
    documents_.push_back(std::make_unique<Document>(std::move(fileName), std::move(database)));
    Document& doc = *documents_.back();
    for (auto* r : std::vector(reactors_))
        guarded("AcApDocManagerReactor::documentCreated", [&] { r->documentCreated(&doc); });
    makeCurrent(doc);
    for (auto& m : modules_) sendMessage(*m, AcRx::kLoadDwgMsg, m->handle);
    return doc;
}

Document& Host::openDocument(std::wstring fileName) {
    return openDocument(std::move(fileName), std::make_unique<db::Database>());
}

void Host::closeDocument(Document& doc) {
    {
        bool wasCurrent = current_ == &doc;
        CurrentDocumentScope closing(*this, &doc);
        if (wasCurrent) closing.restoreTo(nullptr);
        for (auto& m : modules_) sendMessage(*m, AcRx::kUnloadDwgMsg, m->handle);
        for (auto* r : std::vector(reactors_))
            guarded("AcApDocManagerReactor::documentToBeDestroyed", [&] { r->documentToBeDestroyed(&doc); });
    }
    auto it = std::find_if(documents_.begin(), documents_.end(),
                           [&](const auto& d) { return d.get() == &doc; });
    if (it != documents_.end()) documents_.erase(it);
    if (!current_ && !documents_.empty()) makeCurrent(*documents_.back());
}

void Host::closeAllDocuments() {
    while (!documents_.empty()) closeDocument(*documents_.back());
}

void Host::sendMessage(Module& module, AcRx::AppMsgCode msg, void* pkt) {
    ActiveModuleScope active(*this, &module);
    callEntry(module, msg, pkt);
}

// Module code called by the host is guarded as the host's own exports are: an exception out of
// a module stops at the boundary.
int Host::callEntry(Module& module, AcRx::AppMsgCode msg, void* pkt) {
    return guarded("acrxEntryPoint", static_cast<int>(AcRx::kRetError),
                   [&] { return static_cast<int>(module.entry(msg, pkt)); });
}

Module* Host::loadModule(const std::filesystem::path& path, std::wstring& error) {
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        const char* why = dlerror();
        error = L"cannot load module " + nameOf(path) + L": " + fromUtf8(why ? why : "");
        return nullptr;
    }
    auto entry = reinterpret_cast<AcRxEntryPointFn>(dlsym(handle, "acrxEntryPoint"));
    auto version = reinterpret_cast<AcRxGetApiVersionFn>(dlsym(handle, "acrxGetApiVersion"));
    if (!entry || !version) {
        error = L"not an application module (no acrxEntryPoint or acrxGetApiVersion): " + nameOf(path);
        dlclose(handle);
        return nullptr;
    }
    int api = version();
    if ((api >> 16) != ACRX_API_VERSION_MAJOR) {
        error = L"module " + nameOf(path) + L" was built for API version " +
                std::to_wstring(api >> 16) + L", the host provides " +
                std::to_wstring(ACRX_API_VERSION_MAJOR);
        dlclose(handle);
        return nullptr;
    }
    auto module = std::make_unique<Module>();
    module->path = nameOf(path);
    module->name = nameOf(path.stem());
    module->handle = handle;
    module->entry = entry;
    module->apiVersion = api;
    modules_.push_back(std::move(module));
    Module& m = *modules_.back();
    setApplicationName(m.name);
    sendMessage(m, AcRx::kInitAppMsg, m.handle);
    for (auto& doc : documents_) {
        CurrentDocumentScope each(*this, doc.get());
        sendMessage(m, AcRx::kLoadDwgMsg, m.handle);
    }
    return &m;
}

void Host::unloadModule(Module* module) {
    auto it = std::find_if(modules_.begin(), modules_.end(),
                           [&](const auto& m) { return m.get() == module; });
    if (it == modules_.end()) return;
    for (auto& doc : documents_) {
        CurrentDocumentScope each(*this, doc.get());
        sendMessage(*module, AcRx::kUnloadDwgMsg, module->handle);
    }
    sendMessage(*module, AcRx::kUnloadAppMsg, module->handle);
    // Functions the module failed to undefine can no longer be called.
    for (auto& doc : documents_)
        std::erase_if(doc->functions(), [&](const auto& kv) { return kv.second.module == module; });
    void* handle = module->handle;
    modules_.erase(it);
    // A thread the module started may still run its code: then the library stays mapped.
    if (win::runningThreadCount() == 0) dlclose(handle);
}

void Host::unloadAllModules() {
    while (!modules_.empty()) unloadModule(modules_.back().get());
}

CallResult Host::invoke(std::wstring_view name, const std::vector<lisp::ValuePtr>& args) {
    if (!current_) return {};
    auto& functions = current_->functions();
    auto it = functions.find(upperAscii(name));
    if (it == functions.end() || !it->second.module) return {};
    RegisteredFunction fn = it->second;
    ActiveModuleScope active(*this, fn.module);
    return runInvocation(fn.code, args, [&] { return callEntry(*fn.module, AcRx::kInvkSubrMsg, fn.module->handle); });
}

CallResult Host::runInvocation(short code, const std::vector<lisp::ValuePtr>& args,
                               const std::function<int()>& body) {
    CallResult result;
    result.defined = true;
    InvocationFrame frame(*this, code, args);
    result.entryResult = body();
    result.value = frame.invocation().result;
    return result;
}

void Host::addReactor(AcApDocManagerReactor* reactor) {
    if (std::find(reactors_.begin(), reactors_.end(), reactor) == reactors_.end())
        reactors_.push_back(reactor);
}

void Host::removeReactor(AcApDocManagerReactor* reactor) { std::erase(reactors_, reactor); }

void Host::overrideDefunResult(std::wstring name, int result) {
    defunOverrides_[upperAscii(name)] = result;
}

std::optional<int> Host::takeDefunOverride(std::wstring_view name) {
    auto it = defunOverrides_.find(upperAscii(name));
    if (it == defunOverrides_.end()) return std::nullopt;
    int r = it->second;
    defunOverrides_.erase(it);
    return r;
}

db::Database& currentDatabase() { return Host::instance().current().database(); }

}  // namespace host
