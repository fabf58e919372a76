// Character type of the host interface: every string that crosses it is wide.
#pragma once

typedef wchar_t ACHAR;

#ifndef ACRX_T
#define ACRX_T(x) L##x
#endif
#ifndef _T
#define _T(x) L##x
#endif
