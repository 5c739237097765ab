// What the fuzzing programs share: a check that is there in every build, and an input to take from.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): it tells what was expected
#define EXPECT(condition)                                                                                              \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            (void)std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition);                         \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) : m_data(data, size) {}

    bool IsEmpty() const { return m_data.empty(); }

    // The next byte, 0 where there is none.
    std::uint8_t Byte()
    {
        if (m_data.empty()) {
            return 0;
        }
        const std::uint8_t byte = m_data.front();
        m_data = m_data.subspan(1);
        return byte;
    }

private:
    std::span<const std::uint8_t> m_data;
};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
