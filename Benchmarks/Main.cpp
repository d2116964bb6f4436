// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include <benchmark/benchmark.h>

BENCHMARK_MAIN();
