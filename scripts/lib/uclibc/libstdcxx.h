// Ahead of every C++ source: libstdc++'s headers were made for glibc and name what uClibc lacks.
#pragma once

#include <bits/c++config.h>

#undef _GLIBCXX_HAVE_AT_QUICK_EXIT
#undef _GLIBCXX_HAVE_QUICK_EXIT
#undef _GLIBCXX_HAVE_TIMESPEC_GET
#undef _GLIBCXX_USE_PTHREAD_COND_CLOCKWAIT
#undef _GLIBCXX_USE_PTHREAD_MUTEX_CLOCKLOCK
#undef _GLIBCXX_USE_PTHREAD_RWLOCK_CLOCKLOCK

struct __locale_struct;
typedef struct __locale_struct* __locale_t;
