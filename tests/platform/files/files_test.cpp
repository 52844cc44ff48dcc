#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <functional>

#include "platform/files/contents.h"
#include "platform/files/log_file.h"
#include "platform/files/paths.h"
#include "support/errors.h"

using namespace Qt::StringLiterals;
using support::errorOf;

namespace {

class Files : public ::testing::Test {
 protected:
  Files() { qputenv("ZARIM_DRIVE_C", folder_.path().toUtf8()); }
  ~Files() override { qunsetenv("ZARIM_DRIVE_C"); }

  QString on(const QString& path) const { return folder_.filePath(path); }
  QTemporaryDir folder_;
};

TEST_F(Files, DrivePathsAreFoundWhateverTheCaseAndTheSlash) {
  QDir(folder_.path()).mkpath(u"Zarim/Config"_s);
  files::write(on(u"Zarim/Config/Paths.INI"_s), "x");
  for (const auto& path :
       {u"c:\\zarim\\config\\paths.ini"_s, u"C:/ZARIM\\Config/PATHS.ini"_s, u"c:zarim/config/paths.ini"_s}) {
    EXPECT_EQ(files::resolve(path), on(u"Zarim/Config/Paths.INI"_s)) << path.toStdString();
    EXPECT_TRUE(files::exists(path));
  }
  EXPECT_EQ(files::resolve(u"c:\\zarim\\Config\\Novo.txt"_s), on(u"Zarim/Config/Novo.txt"_s));
  EXPECT_EQ(files::resolve(u"/tmp/Qualquer"_s), u"/tmp/Qualquer");
  EXPECT_EQ(files::resolve(u"d:\\x"_s), u"d:\\x");
  EXPECT_FALSE(files::exists(u"c:\\zarim\\config"_s)) << "a folder is no file";
  EXPECT_FALSE(files::exists(u""_s));
  EXPECT_EQ(errorOf([] { static_cast<void>(files::resolve(u"c:\\a\0b"_s)); }), values::kBadFileName);
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
      {[] { files::append(u"/dev/full"_s, "x"); }, values::kPathFileAccess},
      {[] { files::removeIfThere(u"c:\\nada.txt"_s); }, 0}};
  for (const auto& [call, number] : faults) EXPECT_EQ(errorOf(call), number);
}

TEST_F(Files, PathsStayInTheFolderOfTheirDrive) {
  QDir(folder_.path()).mkpath(u"c/zarim"_s);
  qputenv("ZARIM_DRIVE_C", on(u"c"_s).toUtf8());
  files::write(on(u"segredo.txt"_s), "x");
  files::write(u"c:\\zarim\\dentro.txt"_s, "x");
  ASSERT_TRUE(QFile::link(folder_.path(), on(u"c/fora"_s)));
  ASSERT_TRUE(QFile::link(on(u"c/zarim"_s), on(u"c/aqui"_s)));
  ASSERT_TRUE(QFile::link(on(u"nova.txt"_s), on(u"c/nova.txt"_s)));
  EXPECT_EQ(files::resolve(u"c:\\..\\.\\zarim\\..\\..\\segredo.txt"_s), on(u"c/segredo.txt"_s));
  EXPECT_EQ(files::readAll(u"c:\\AQUI\\dentro.txt"_s), "x");
  for (const auto& path : {u"c:\\fora\\segredo.txt"_s, u"c:/fora/outro.txt"_s, u"c:\\nova.txt"_s}) {
    EXPECT_FALSE(files::exists(path));
    EXPECT_EQ(errorOf([&] { files::append(path, "y"); }), values::kPermissionDenied) << path.toStdString();
  }
  EXPECT_FALSE(QFile::exists(on(u"nova.txt"_s)) || QFile::exists(on(u"outro.txt"_s)));
}

TEST_F(Files, APipeIsRefusedWithoutWaiting) {
  ASSERT_EQ(mkfifo(on(u"foto.jpg"_s).toUtf8().constData(), 0600), 0);
  EXPECT_FALSE(files::exists(u"c:\\foto.jpg"_s));
  EXPECT_EQ(errorOf([] { (void)files::readAll(u"c:\\foto.jpg"_s); }), values::kPathFileAccess);
  EXPECT_EQ(errorOf([] { files::append(u"c:\\foto.jpg"_s, "x"); }), values::kPathFileAccess);
}

TEST_F(Files, ADiskThatFillsUpLeavesWhatWasThere) {
  files::write(u"c:\\a.txt"_s, QByteArray(5'000, 'a'));
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{10'000, RLIM_INFINITY};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  EXPECT_EQ(errorOf([] { files::append(u"c:\\a.txt"_s, QByteArray(9'000, 'b')); }), values::kDiskFull);
  EXPECT_EQ(errorOf([] { files::append(u"c:\\b.txt"_s, QByteArray(11'000, 'b')); }), values::kDiskFull);
  EXPECT_EQ(errorOf([] { files::write(u"c:\\a.txt"_s, QByteArray(11'000, 'b')); }), values::kDiskFull);
  const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
  EXPECT_EQ(files::readAll(u"c:\\a.txt"_s), QByteArray(5'000, 'a'));
  EXPECT_FALSE(files::exists(u"c:\\b.txt"_s));
}

}  // namespace
