#include <string>

#include <benchmark/benchmark.h>

#include "expr/compiled_formula.h"
#include "expr/evaluator.h"
#include "expr/literal_evaluator.h"

namespace tessaplot::expr {
namespace {

/// A sum of `terms` terms, none of which repeats another.
std::string formulaOf(std::int64_t terms) {
    std::string formula = "X";
    for (std::int64_t term = 1; term <= terms; ++term)
        formula += "+SIN(X/" + std::to_string(term) + ")*(Y-" + std::to_string(term) + ")^2";
    return formula;
}

std::string postfixOf(const std::string& formula) {
    EvaluatorContext context;
    std::string postfix;
    std::int32_t position = 0;
    Cls6(context).InfixToPostfix(formula, postfix, position);
    return postfix;
}

/// Another sample each time, so that no evaluation repeats the last one.
struct Sample {
    double x = -10;
    double y = 10;
    void next() {
        x = x < 10 ? x + 0.37 : -10;
        y = y > -10 ? y - 0.61 : 10;
    }
};

void BM_DoEvaluate(benchmark::State& state) {
    const std::string postfix = postfixOf(formulaOf(state.range(0)));
    EvaluatorContext context;
    Cls6 evaluator(context);
    Sample sample;
    double result = 0;
    for (auto _ : state) {
        sample.next();
        evaluator.DoEvaluate(postfix, false, result, 0, 0, sample.x, sample.y, 0, 0, 0, 0);
        benchmark::DoNotOptimize(result);
    }
    state.SetComplexityN(state.range(0));
}

void BM_CompiledFormula(benchmark::State& state) {
    CompiledFormula formula(postfixOf(formulaOf(state.range(0))));
    RandomSequence random;
    Sample sample;
    double result = 0;
    for (auto _ : state) {
        sample.next();
        formula.assign(0, 0, sample.x, sample.y, 0, 0, 0, 0);
        formula.evaluate(false, random, result);
        benchmark::DoNotOptimize(result);
    }
    state.SetComplexityN(state.range(0));
}

void BM_PlainTextWalk(benchmark::State& state) {
    const std::string postfix = postfixOf(formulaOf(state.range(0)));
    RandomSequence random;
    tests::LiteralEvaluator evaluator(false, random);
    Sample sample;
    double result = 0;
    for (auto _ : state) {
        sample.next();
        evaluator.evaluate(postfix, false, result, {0, 0, sample.x, sample.y, 0, 0, 0, 0});
        benchmark::DoNotOptimize(result);
    }
    state.SetComplexityN(state.range(0));
}

/// Reading the formula and making it ready, as happens once for a formula.
void BM_ReadAndCompile(benchmark::State& state) {
    const std::string formula = formulaOf(state.range(0));
    for (auto _ : state) {
        CompiledFormula compiled(postfixOf(formula));
        benchmark::DoNotOptimize(&compiled);
    }
    state.SetComplexityN(state.range(0));
}

BENCHMARK(BM_DoEvaluate)->RangeMultiplier(8)->Range(1, 4096)->Complexity();
BENCHMARK(BM_CompiledFormula)->RangeMultiplier(8)->Range(1, 4096)->Complexity();
BENCHMARK(BM_PlainTextWalk)->RangeMultiplier(8)->Range(1, 4096)->Complexity();
BENCHMARK(BM_ReadAndCompile)->RangeMultiplier(8)->Range(1, 4096)->Complexity();

}  // namespace
}  // namespace tessaplot::expr

BENCHMARK_MAIN();
