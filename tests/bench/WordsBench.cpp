// What the words of a figure cost: they are made at every key press in it.

#include <benchmark/benchmark.h>

#include "drc/mdlConvertNumberToWord.h"

namespace plandesk {
namespace {

constexpr const char* figures[] = {"0", "1234.5", "99,999.99", "12,34,56,789.05", "9999999999", "twelve"};

void wordsOfAFigure(benchmark::State& state) {
    const char* figure = figures[state.range(0)];
    for (auto round : state)
        benchmark::DoNotOptimize(figureInWords(figure, " sq. mtrs."));
    state.SetLabel(figure);
}
BENCHMARK(wordsOfAFigure)->DenseRange(0, static_cast<int>(std::size(figures)) - 1);

}  // namespace
}  // namespace plandesk
