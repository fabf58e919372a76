// The handler of a function of the table that this version does not provide: it says so
// plainly and fails.
#pragma once

namespace vrn2 {

int reportNotAvailable(int code);

template <int Code>
int notAvailable() {
    return reportNotAvailable(Code);
}

}  // namespace vrn2
