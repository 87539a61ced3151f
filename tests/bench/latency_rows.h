#ifndef VENDLINGUA_TESTS_BENCH_LATENCY_ROWS_H_
#define VENDLINGUA_TESTS_BENCH_LATENCY_ROWS_H_

#include <QElapsedTimer>
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

namespace vendlingua::test {

inline double Milliseconds(const QElapsedTimer& timer) {
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// How long commands take, a row for each kind of command.
class LatencyRows {
 public:
  /// `times` in milliseconds, at least one.
  void Add(const std::string& name, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    rows_.push_back({name, times[times.size() / 2], times[times.size() * 99 / 100], times.back()});
  }

  /// As JSON, on standard output.
  void Print() const {
    std::printf("[");
    for (const Row& row : rows_) {
      std::printf("%s\n  {\"name\": \"%s\", \"median\": %.3f, \"p99\": %.3f, \"longest\": %.3f}",
                  &row == rows_.data() ? "" : ",", row.name.c_str(), row.median, row.p99,
                  row.longest);
    }
    std::printf("\n]\n");
  }

 private:
  struct Row {
    std::string name;
    double median;
    double p99;
    double longest;
  };

  std::vector<Row> rows_;
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_BENCH_LATENCY_ROWS_H_
