// The host's document manager and its reactor, as far as per-document data uses them.
#pragma once

#include "AdAChar.h"

class AcApDocument {
public:
    virtual ~AcApDocument() = default;
    virtual const ACHAR* fileName() const = 0;
};

class AcApDocManagerReactor {
public:
    virtual ~AcApDocManagerReactor() = default;
    virtual void documentCreated(AcApDocument*) {}
    virtual void documentToBeDestroyed(AcApDocument*) {}
    virtual void documentBecameCurrent(AcApDocument*) {}
};

class AcApDocManager {
public:
    virtual ~AcApDocManager() = default;
    virtual AcApDocument* curDocument() const = 0;
    virtual int documentCount() const = 0;
    virtual void addReactor(AcApDocManagerReactor* reactor) = 0;
    virtual void removeReactor(AcApDocManagerReactor* reactor) = 0;
};

AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
