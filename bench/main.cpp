// The benchmark program: Google Benchmark's own flags, run headless.
#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include "support/headless.h"

int main(int argc, char** argv) {
  tri::prepareHeadlessQt();
  QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
