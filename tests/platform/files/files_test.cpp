#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <functional>
#include <memory>

#include "files_case.h"
#include "hands/held_file.h"
#include "platform/files/log_file.h"
#include "platform/files/process_lock.h"
#include "platform/files/regular_file.h"

using namespace Qt::StringLiterals;
using support::errorOf;

namespace {

TEST_F(Files, DrivePathsAreFoundWhateverTheCaseAndTheSlash) {
  QDir(folder_.path()).mkpath(u"Zarim/Config"_s);
  files::write(on(u"Zarim/Config/Paths.INI"_s), "x");
  for (const auto& path :
       {u"c:\\zarim\\config\\paths.ini"_s, u"C:/ZARIM\\Config/PATHS.ini"_s, u"c:zarim/config/paths.ini"_s}) {
    EXPECT_EQ(QFileInfo(files::resolve(path)), QFileInfo(on(u"Zarim/Config/Paths.INI"_s)))
        << path.toStdString();
    EXPECT_TRUE(files::exists(path));
  }
  files::write(u"c:\\zarim\\config\\Novo.txt"_s, "x");
  EXPECT_TRUE(QFileInfo::exists(on(u"Zarim/Config/Novo.txt"_s)));
  EXPECT_EQ(files::resolve(u"/tmp/Qualquer"_s), u"/tmp/Qualquer");
  EXPECT_EQ(files::resolve(u"d:\\x"_s), u"d:\\x");
  EXPECT_FALSE(files::exists(u"c:\\zarim\\config"_s)) << "a folder is no file";
  EXPECT_FALSE(files::exists(u""_s));
  EXPECT_EQ(errorOf([] { static_cast<void>(files::resolve(u"c:\\a\0b"_s)); }), values::kBadFileName);
}

TEST_F(Files, AChosenFileOfThisMachineIsNoneOfTheDrivesFolder) {
  const QTemporaryDir other;
  const QString chosen = other.filePath(u"anexo.pdf"_s);
  files::write(chosen, "x");
  // Where paths of the machine begin with a letter themselves a folder stands for that one too.
  const QByteArray variable = QByteArray("ZARIM_DRIVE_") + chosen[0].toLatin1();
  qputenv(variable.constData(), folder_.path().toUtf8());
  EXPECT_EQ(files::readAll(files::ofThisMachine(chosen)), "x");
  EXPECT_EQ(files::ofThisMachine(on(u"docs/anexo.pdf"_s)), on(u"docs/anexo.pdf"_s));
  EXPECT_FALSE(files::resolve(files::ofThisMachine(u"C:/Users/Ana/anexo.pdf"_s)).startsWith(folder_.path()));
  qunsetenv(variable.constData());
}

TEST_F(Files, AFileMadeAfterAFailedLookIsFound) {
  EXPECT_FALSE(files::exists(u"c:\\FOTO.JPG"_s));
  files::write(on(u"foto.jpg"_s), "x");
  EXPECT_TRUE(files::exists(u"c:\\FOTO.JPG"_s));
  files::remove(u"c:\\FOTO.JPG"_s);
  EXPECT_FALSE(files::exists(u"c:\\FOTO.JPG"_s));
}

TEST_F(Files, TheLogIsDatedStaysWithinItsSizeAndKeepsOneOldFile) {
  files::logInto(on(u"estado/zarim.log"_s));
  files::log(u"primeira linha"_s);
  EXPECT_TRUE(files::readLines(files::logPath())
                  .first()
                  .startsWith(QDateTime::currentDateTime().toString(u"yyyy-MM-dd "_s)));
  const QString line(999, u'ç');
  for (int i = 0; i < 1500; ++i) files::log(line);
  const QDir folder(on(u"estado"_s));
  EXPECT_EQ(folder.entryList(QDir::Files), (QStringList{u"zarim.log"_s, u"zarim.log.1"_s}));
  for (const QFileInfo& file : folder.entryInfoList(QDir::Files)) EXPECT_LE(file.size(), 1'000'000);
  EXPECT_TRUE(files::readAll(on(u"estado/zarim.log"_s)).endsWith("\xC3\xA7\n"));
  files::logInto({});
}

TEST_F(Files, LinesOfEveryKind) {
  const std::pair<QByteArray, QStringList> cases[] = {{"", {}},
                                                      {"\n", {u""_s}},
                                                      {"a\r\nb\r\n", {u"a"_s, u"b"_s}},
                                                      {"a\rb", {u"a"_s, u"b"_s}},
                                                      {"a\n\nb\n\n", {u"a"_s, u""_s, u"b"_s, u""_s}},
                                                      {"\xEF\xBB\xBFpre\xC3\xA7o\n", {u"preço"_s}},
                                                      {"pre\xE7o \x80\n", {u"preço €"_s}}};
  for (const auto& [bytes, lines] : cases) {
    files::write(u"c:\\linhas.txt"_s, bytes);
    EXPECT_EQ(files::readLines(u"c:\\linhas.txt"_s), lines) << bytes.constData();
  }
}

TEST_F(Files, FaultsHaveTheirNumbers) {
  QDir(folder_.path()).mkdir(u"pasta"_s);
  const std::pair<std::function<void()>, int> faults[] = {
      {[] { (void)files::readAll(u"c:\\nada.txt"_s); }, values::kFileNotFound},
      {[] { (void)files::readAll(u"c:\\sem\\nada.txt"_s); }, values::kPathNotFound},
      {[] { files::append(u"c:\\sem\\nada.txt"_s, "x"); }, values::kPathNotFound},
      {[] { files::write(u"c:\\sem\\nada.txt"_s, "x"); }, values::kPathNotFound},
      {[] { files::remove(u"c:\\nada.txt"_s); }, values::kFileNotFound},
      {[] { (void)files::readAll(u"c:\\pasta"_s); }, values::kPathFileAccess},
      {[] { files::write(u"c:\\pasta"_s, "x"); }, values::kPathFileAccess},
      {[] { files::removeIfThere(u"c:\\nada.txt"_s); }, 0}};
  for (const auto& [call, number] : faults) EXPECT_EQ(errorOf(call), number);
}

/// What replaces or removes a file meets one that a word processor has open.
TEST_F(Files, AFileThatIsHeldOpenIsAskedAbout) {
  const QString doc = u"c:\\a.doc"_s;
  files::write(doc, "old");
  files::write(u"c:\\a.parte"_s, "new");
  auto held = std::make_unique<hands::HeldFile>(on(u"a.doc"_s));
  ASSERT_TRUE(held->holds());
  const std::function<void()> calls[] = {[&] { files::write(doc, "new"); },
                                         [&] { files::replace(u"c:\\a.parte"_s, doc); },
                                         [&] { files::remove(doc); }};
  for (const auto& call : calls) EXPECT_EQ(errorOf(call), values::kPermissionDenied) << "nobody answers";
  int asked = 0;
  files::setHeldFileQuestion([&](const QString& path) {
    EXPECT_EQ(path, doc);
    if (++asked == 3) held.reset();
    return asked > 1;
  });
  EXPECT_THROW(files::write(doc, "new"), values::Cancelled);
  EXPECT_TRUE(files::isHeld(on(u"a.doc"_s)));
  files::write(doc, "new");
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(files::readAll(doc), "new");
  files::setHeldFileQuestion({});
}

TEST_F(Files, ALockIsHeldByOneAndLeavesNoFile) {
  using std::chrono_literals::operator""ms;
  const QString path = on(u"a.trava"_s);
  auto one = files::ProcessLock::take(path, 0ms);
  ASSERT_NE(one, nullptr);
  EXPECT_TRUE(one->holds());
  EXPECT_EQ(files::ProcessLock::take(path, 20ms), nullptr);
  one.reset();
  EXPECT_FALSE(files::exists(path));
  EXPECT_NE(files::ProcessLock::take(path, 20ms), nullptr);
}

}  // namespace
