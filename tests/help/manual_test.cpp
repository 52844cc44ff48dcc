// The manual speaks of what is there: pictures, names on the screens, messages, pages.
#include "help/manual.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const QString kFolder = QStringLiteral(ZARIM_SOURCE_DIR "/docs/manual/");

QString textOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
  return QString::fromUtf8(file.readAll());
}

/// What stands between two marks, in order.
QStringList between(const QString& text, const QString& pattern) {
  QStringList found;
  auto matches = QRegularExpression(pattern).globalMatch(text);
  while (matches.hasNext()) found.append(matches.next().captured(1));
  return found;
}

/// All of the program's source in one text: neighbouring literals joined, access keys taken out.
const QString& source() {
  static const QString all = [] {
    QString text;
    QDirIterator files(QStringLiteral(ZARIM_SOURCE_DIR "/src"), {u"*.cpp"_s, u"*.h"_s, u"*.ui"_s},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) text += textOf(files.next());
    text.remove(QRegularExpression(u"\"_s\\s*\\+?\\s*u?\"|\"\\s+u?\""_s)).remove(u"&amp;"_s);
    return text.remove(QRegularExpression(u"&(?=[A-Za-z])"_s));
  }();
  return all;
}

/// A name as it stands in a layout or a literal, with or without its colon.
bool isOnAScreen(const QString& name) {
  static const QSet<QString> names = [] {
    QSet<QString> set;
    for (const QString& one : between(source(), u">([^<>\n]+)</string>"_s)) set.insert(one);
    for (const QString& one : between(source(), u"\"([^\"\n]+)\""_s)) set.insert(one);
    return set;
  }();
  return names.contains(name) || names.contains(name + u':');
}

QStringList pages() { return QDir(kFolder).entryList({u"*.md"_s}, QDir::Files); }

TEST(Manual, NamesOnlyWhatIsThere) {
  const QStringList taken =
      between(textOf(QStringLiteral(ZARIM_SOURCE_DIR "/sample/roads/manual.road")), u"screenshot (\\w+)"_s);
  QSet<QString> shown;
  for (const QString& page : pages()) {
    const QString text = textOf(kFolder + page);
    for (const QString& picture : between(text, u"\\]\\(pictures/([^)]+)\\.png\\)"_s)) {
      EXPECT_TRUE(QFile::exists(kFolder + u"pictures/"_s + picture + u".png"_s))
          << qPrintable(page + u' ' + picture);
      EXPECT_TRUE(taken.contains(picture)) << qPrintable(picture);
      shown.insert(picture);
    }
    for (const QString& name : between(text, u"\\*\\*([^*]+)\\*\\*"_s))
      EXPECT_TRUE(isOnAScreen(name.simplified())) << qPrintable(page + u": "_s + name);
    for (const QString& message : between(text, u"\"([^\"]+)\""_s))
      EXPECT_TRUE(source().contains(message.simplified())) << qPrintable(page + u": "_s + message);
    for (const QString& other : between(text, u"\\]\\(([^)]+\\.md)\\)"_s))
      EXPECT_TRUE(QFile::exists(kFolder + other)) << qPrintable(page + u": "_s + other);
  }
  for (const QString& picture : taken) EXPECT_TRUE(shown.contains(picture)) << qPrintable(picture);
}

TEST(Manual, HasAPageForEveryScreen) {
  QDirIterator layouts(QStringLiteral(ZARIM_SOURCE_DIR "/src"), {u"*.ui"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
  while (layouts.hasNext()) {
    layouts.next();
    const QString page = paginaDoManual(layouts.fileInfo().completeBaseName());
    EXPECT_NE(page, u"index.html"_s) << qPrintable(layouts.fileName());
    EXPECT_TRUE(pages().contains(page.chopped(5) + u".md"_s)) << qPrintable(page);
    EXPECT_TRUE(enderecoDoManual(page).isLocalFile()) << qPrintable(page);
  }
}

}  // namespace
