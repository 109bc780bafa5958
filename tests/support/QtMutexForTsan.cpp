// Qt is not instrumented, so the thread sanitizer sees nothing of what happens in QMutex and would
// take everything that our locks protect for a race. These stand in front of Qt's own and tell it.

#include <QMutex>
#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace
{

template <typename Function>
Function behind(const char* symbol)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, symbol));
}

} // namespace

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto next = behind<void (*)(QMutex*)>("_ZN6QMutex4lockEv");
    next(this);
    __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout) QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto next = behind<bool (*)(QMutex*, int)>("_ZN6QMutex7tryLockEi");
    const bool locked = next(this, timeout);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

void QMutex::unlock() noexcept
{
    static const auto next = behind<void (*)(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    next(this);
}
