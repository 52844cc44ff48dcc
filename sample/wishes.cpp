#include <cstdio>
#include <cstdlib>

#include "platform/values/dates.h"
#include "sample/company.h"

using namespace Qt::StringLiterals;

namespace sample {

void addWishes(QCommandLineParser& parser) {
  parser.addHelpOption();
  parser.addOptions(
      {{u"day"_s, u"The day that all dates count from; today unless given."_s, u"dd/mm/yyyy"_s},
       {u"mail-server"_s, u"The server that mail goes to."_s, u"host:port"_s},
       {u"web-pictures"_s, u"Where the picture folders are on the web."_s, u"http://host:port/"_s}});
}

Wishes wishesOf(const QCommandLineParser& parser) {
  Wishes wishes{QDate::currentDate(), parser.value(u"mail-server"_s), parser.value(u"web-pictures"_s)};
  if (!parser.isSet(u"day"_s)) return wishes;
  if (!values::isDate(parser.value(u"day"_s))) {
    std::fputs("--day wants dd/mm/yyyy.\n", stderr);
    std::exit(2);
  }
  wishes.day = values::toDate(parser.value(u"day"_s)).date();
  return wishes;
}

}  // namespace sample
