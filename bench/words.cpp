// Number words: ours beside ICU's Spanish ones, for the same numbers, with the memory that ours ask for.
#include "Numerales.h"

#include <benchmark/benchmark.h>
#include <unicode/rbnf.h>

#include <cstdlib>
#include <new>
#include <random>
#include <vector>

namespace {

std::size_t s_allocations = 0;

constexpr std::size_t count = 1024; // the remainder of a power of two costs nothing

std::vector<double> Numbers(int below)
{
    std::mt19937 random(1);
    std::vector<double> numbers(count);
    for (double& number : numbers) {
        number = static_cast<double>(random() % static_cast<std::uint32_t>(below));
    }
    return numbers;
}

void Kelvora(benchmark::State& state)
{
    const std::vector<double> numbers = Numbers(static_cast<int>(state.range(0)));
    std::size_t i = 0;
    const std::size_t before = s_allocations;
    while (state.KeepRunning()) {
        bool denominator = false;
        benchmark::DoNotOptimize(lenguaje::NumeroEnLetras(numbers[i++ % count], denominator, lenguaje::Variante::Base));
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(s_allocations - before), benchmark::Counter::kAvgIterations);
}

void Icu(benchmark::State& state)
{
    const std::vector<double> numbers = Numbers(static_cast<int>(state.range(0)));
    UErrorCode status = U_ZERO_ERROR;
    const icu::RuleBasedNumberFormat format(icu::URBNF_SPELLOUT, icu::Locale("es"), status);
    std::size_t i = 0;
    while (state.KeepRunning()) {
        icu::UnicodeString words;
        format.format(static_cast<std::int32_t>(numbers[i++ % count]), words);
        benchmark::DoNotOptimize(words);
    }
}

} // namespace

// NOLINTNEXTLINE(cert-dcl58-cpp,misc-definitions-in-headers): counts every allocation of the program
[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++s_allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

BENCHMARK(Kelvora)->Arg(100)->Arg(10000)->Arg(1000000);
BENCHMARK(Icu)->Arg(100)->Arg(10000)->Arg(1000000);

BENCHMARK_MAIN();
