#include <QApplication>
#include <cstdlib>
#include <cstring>

#include "harness.h"
#include "measurements.h"
#include "platform/forms/form.h"

// Times the handlers of the program beside their floors. "--only WORD" runs the subjects whose name holds it.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ZARIM_SOURCE_DIR "/tools/hands/screen_1024x768.json");
  QApplication application(argc, argv);
  QApplication::setFont({QApplication::font().family(), 9});  // as a desktop sets it
  QApplication::setQuitOnLastWindowClosed(false);
  forms::applyStyle();
  if (argc > 1 && std::strcmp(argv[1], "--start") == 0) return bench::startAsChild();

  if (argc > 2 && std::strcmp(argv[1], "--document") == 0) return bench::documentAsChild(std::atoi(argv[2]));

  const char* only = argc > 2 && std::strcmp(argv[1], "--only") == 0 ? argv[2] : "";
  const struct {
    const char* name;
    void (*run)();
  } subjects[] = {
      {"start", bench::starting},      {"quotes", bench::openingAndSaving}, {"drafts", bench::keepingDrafts},
      {"lookups", bench::lookingUp},   {"searches", bench::searching},      {"mass", bench::including},
      {"documents", bench::documents}, {"pages", bench::picturing},         {"panes", bench::showing},
      {"lists", bench::dropping},      {"server", bench::farServer}};
  for (const auto& subject : subjects)
    if (std::strstr(subject.name, only) != nullptr) subject.run();
  bench::printSummary();
  return 0;
}
