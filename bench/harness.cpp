#include "harness.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "floor.h"
#include "platform/data/connection.h"
#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

std::vector<std::string>& summary() {
  static std::vector<std::string> lines;
  return lines;
}

/// The library's own report without its heading on the machine, which would stand before every measurement.
class Reporter : public benchmark::ConsoleReporter {
 public:
  bool ReportContext(const Context& context) override {
    name_field_width_ = std::max<std::size_t>(context.name_field_width, 60);
    return true;
  }
};

/// Puts a file back as it was, without what a run left in its log.
void restore(const QString& from, const QString& to) {
  for (const auto& suffix : {u""_s, u"-wal"_s, u"-shm"_s}) QFile::remove(to + suffix);
  QFile::copy(from, to);
}

}  // namespace

Bench::Bench() {
  support::fillBasics(databasePath());
  forms::setBoxAnswerer([](const forms::Box& box) {
    return box.buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::Yes;
  });
  forms::setEnd([](int status) {
    std::fprintf(stderr, "The program ended with status %d\n", status);
    std::_Exit(1);
  });
}

Bench::~Bench() {
  forms::setBoxAnswerer({});
  forms::setEnd({});
}

void Bench::fill(const QStringList& sqls) {
  data::Connection connection;
  connection.open(u"server=(embutido);database="_s + databasePath(), 30);
  connection.begin();
  for (const QString& one : sqls) connection.execute(one);
  connection.commit();
}

void Bench::start() {
  contexto().LinhaComando = u"7^0^PRD^"_s;
  forms::form<frmPropCmrcTL>().showForm();
  QCoreApplication::processEvents();
}

double milliseconds(const std::function<void()>& call) {
  const auto start = std::chrono::steady_clock::now();
  call();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0.0 : values[values.size() / 2];
}

void measure(Bench& company, const Measurement& one) {
  const QString path = contexto().NomeBanco;
  const QString kept = path + u".kept"_s;
  const auto reopen = [&] {
    contexto().Conexao.close();
    restore(kept, path);
    contexto().Conexao.open(contexto().StringConexaoMSSQL, 30);
  };
  contexto().Conexao.close();
  QFile::remove(kept);
  QFile::copy(path, kept);
  reopen();

  QStringList statements;
  one.prepare();
  contexto().Conexao.setListener([&](const QString& sql) { statements << sql; });
  one.handler();
  contexto().Conexao.setListener({});
  const Floor floor(statements);

  std::vector<double> times;
  std::vector<double> floors;
  benchmark::RegisterBenchmark((one.name + "/" + std::to_string(one.size)).c_str(),
                               [&](benchmark::State& state) {
                                 for (auto _ : state) {
                                   double atFloor = floor.run(kept);
                                   if (one.floorExtra) atFloor += milliseconds(one.floorExtra);
                                   floors.push_back(atFloor);
                                   reopen();
                                   one.prepare();
                                   times.push_back(milliseconds(one.handler));
                                   state.SetIterationTime(times.back() / 1000.0);
                                 }
                                 state.counters["statements"] = static_cast<double>(statements.size());
                                 state.counters["floor_ms"] = median(floors);
                               })
      ->UseManualTime()
      ->Iterations(one.runs)
      ->Unit(benchmark::kMillisecond);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::ClearRegisteredBenchmarks();
  tell(one.name, one.size, median(times), median(floors));
  static_cast<void>(company);
}

void tell(const std::string& name, int size, double time, double floor) {
  char line[160];
  std::snprintf(line, sizeof line, "%-34s %7d %11.2f ms %11.2f ms %8.2f", name.c_str(), size, time, floor,
                floor > 0 ? time / floor : 0.0);
  summary().emplace_back(line);
}

void tellLine(const std::string& line) { summary().push_back(line); }

void printSummary() {
  std::printf("\n%-34s %7s %14s %14s %8s\n", "measurement", "size", "time", "floor", "ratio");
  for (const std::string& line : summary()) std::printf("%s\n", line.c_str());
}

}  // namespace bench
