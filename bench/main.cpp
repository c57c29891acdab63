// Runs the benchmarks:
//   tolva_bench <folder> [option of Google Benchmark...]
// Prints the tables. The folder gets results.json, all that was measured, and times.tsv, for the
// plots.
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench.h"
#include "report.h"

int main(int argc, char** argv) {
  using namespace tolva::bench;
  if (argc < 2) {
    std::fprintf(stderr, "tolva_bench <folder> [option...]\n");
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  // The repetitions of all benchmarks are shuffled, so that what disturbs the machine for a while
  // does not fall upon one contender.
  std::vector<std::string> arguments = {argv[0], "--benchmark_enable_random_interleaving=true",
                                        "--benchmark_out=" + (folder / "results.json").string(),
                                        "--benchmark_out_format=json"};
  arguments.insert(arguments.end(), argv + 2, argv + argc);
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  auto count = static_cast<int>(pointers.size());
  benchmark::Initialize(&count, pointers.data());
  if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) return 2;

  RegisterWalks();
  RegisterReads();
  RegisterWrites();
  Report report;
  benchmark::RunSpecifiedBenchmarks(&report);
  report.Print();
  return report.is_complete() && report.Save(folder / "times.tsv") ? 0 : 1;
}
