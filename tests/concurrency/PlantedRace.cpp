#include <QMutex>
#include <QMutexLocker>
#include <cstdio>
#include <thread>

/// Two threads of which only one locks: the thread sanitizer has to find it, or it finds nothing.
int main()
{
    QMutex mutex;
    int count = 0;
    const auto locked = [&] {
        for (int i = 0; i < 1000; ++i) {
            const QMutexLocker locker(&mutex);
            ++count;
        }
    };
    const auto careless = [&] {
        for (int i = 0; i < 1000; ++i)
            ++count;
    };
    std::thread first(locked);
    std::thread second(careless);
    first.join();
    second.join();
    std::printf("%d\n", count);
    return 0;
}
