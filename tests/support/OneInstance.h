#pragma once

#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace quorvel::test
{

/// Expects threads that ask for the one object of the process at once to get the same.
template <typename Singleton>
void expectOneInstanceForAllThreads()
{
    std::vector<decltype(Singleton::getInstance())> seen(8);
    std::vector<std::thread> threads;
    for (auto& instance : seen)
        threads.emplace_back([&instance] { instance = Singleton::getInstance(); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_TRUE(seen[0]);
    for (const auto& instance : seen)
        EXPECT_EQ(instance, seen[0]);
}

} // namespace quorvel::test
