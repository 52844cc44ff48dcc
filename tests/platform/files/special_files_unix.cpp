#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <csignal>

#include "files_case.h"

using namespace Qt::StringLiterals;
using support::errorOf;

namespace {

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
  EXPECT_EQ(errorOf([] { files::append(u"/dev/full"_s, "x"); }), values::kPathFileAccess);
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
