#pragma once

#include <memory>
#include <utility>

namespace quorvel::simulator
{

/// A value that its copies share until one of them writes. A request works on a copy of the whole
/// gateway, which has to cost nothing as long as it only reads.
template <typename T>
class Cow
{
public:
    Cow() : shared(std::make_shared<T>()) {}
    explicit Cow(T value) : shared(std::make_shared<T>(std::move(value))) {}

    const T& read() const { return *shared; }

    T& write()
    {
        if (shared.use_count() > 1)
            shared = std::make_shared<T>(*shared);
        return *shared;
    }

private:
    std::shared_ptr<T> shared;
};

} // namespace quorvel::simulator
