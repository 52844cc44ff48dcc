#include "harness.h"

#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
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

Times timeOf(const std::function<void()>& call) {
  const auto start = std::chrono::steady_clock::now();
  const std::clock_t used = std::clock();
  call();
  const std::clock_t usedThen = std::clock();
  return {std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count(),
          static_cast<double>(usedThen - used) * 1000.0 / CLOCKS_PER_SEC};
}

Times median(const std::vector<Times>& times) {
  std::vector<double> wall;
  std::vector<double> cpu;
  for (const Times& one : times) {
    wall.push_back(one.wall);
    cpu.push_back(one.cpu);
  }
  return {median(wall), median(cpu)};
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

  std::vector<Times> times;
  std::vector<Times> floors;
  for (int run = 0; run < one.runs; ++run) {
    floors.push_back(floor.run(kept));
    if (one.floorExtra) {
      const Times extra = timeOf(one.floorExtra);
      floors.back().wall += extra.wall;
      floors.back().cpu += extra.cpu;
    }
    reopen();
    one.prepare();
    times.push_back(timeOf(one.handler));
  }
  record(one.name, one.size, median(times), median(floors));
  static_cast<void>(company);
}

void record(const std::string& name, int size, Times time, Times floor) {
  const auto ratio = [](double of, double to) { return to > 0 ? of / to : 0.0; };
  char line[200];
  std::snprintf(line, sizeof line, "%-38s %7d %11.2f ms %11.2f ms %7.2f %7.2f", name.c_str(), size, time.wall,
                floor.wall, ratio(time.wall, floor.wall), ratio(time.cpu, floor.cpu));
  summary().emplace_back(line);
}

void addLine(const std::string& line) { summary().push_back(line); }

void printSummary() {
  std::printf("\n%-38s %7s %14s %14s %7s %7s\n", "measurement", "size", "time", "floor", "ratio", "cpu");
  for (const std::string& line : summary()) std::printf("%s\n", line.c_str());
}

}  // namespace bench
