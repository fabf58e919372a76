// Status codes of the database's object functions (the subset used here).
#pragma once

struct Acad {
    enum ErrorStatus {
        eOk = 0,
        eInvalidInput = 3,
    };
};
