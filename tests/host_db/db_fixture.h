// A document of its own for each test: a new drawing or one read from DXF text, with the
// command line captured, closed again afterwards.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/db/database.h"
#include "host/db/resbuf.h"
#include "host/output.h"
#include "host/runtime/host.h"
#include "host/session.h"

namespace dbtest {

class DrawingTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Replaces the current drawing by one read from DXF text; fails the test when it cannot.
    void openDxf(const std::string& text);
    host::Document& doc() { return host::Host::instance().current(); }
    host::db::Database& db() { return doc().database(); }
    short errnoValue();
    const std::wstring& printed() const { return capture_->commandLine(); }

    // Entity helpers over the interface functions.
    void makeLine(const double a[3], const double b[3], const wchar_t* layer = nullptr);
    void last(ads_name e);
    host::RbPtr get(const ads_name e) { return host::RbPtr(acdbEntGet(e)); }
    // Entity lists, with all extended data, of the live entities of a type, in drawing order.
    std::vector<host::RbPtr> all(const wchar_t* type);
    // The first node with the code, or null.
    static const resbuf* find(const resbuf* rb, int code, int occurrence = 0);

private:
    host::Session session_;  // nothing left from an earlier test
    std::unique_ptr<host::OutputCapture> capture_;
};

// The string of a node, or "" for none.
inline std::wstring text(const resbuf* rb) { return rb && rb->resval.rstring ? rb->resval.rstring : L""; }

// Runs a command through acedCmd from a list built with acutBuildList.
int command(resbuf* list);

// DXF text of a small drawing written by hand: groups given as (code, value) pairs.
std::string dxf(const std::vector<std::pair<int, std::string>>& groups);

}  // namespace dbtest
