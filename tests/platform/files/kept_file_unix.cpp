#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <thread>

#include "platform/files/kept_file.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using files::KeptFile;

namespace {

class Kept : public ::testing::Test {
 protected:
  [[nodiscard]] std::unique_ptr<KeptFile> file() const {
    return std::make_unique<KeptFile>(folder(), u".x"_s);
  }
  [[nodiscard]] QString folder() const { return temporary_.path() + u"/a/b"_s; }
  [[nodiscard]] QStringList names() const { return QDir(folder()).entryList(QDir::Files | QDir::Hidden); }
  /// What another program finds.
  [[nodiscard]] QList<KeptFile::Left> left() const {
    QList<KeptFile::Left> all;
    const auto other = file();
    other->look([&all](const auto& found) { all = found; });
    EXPECT_TRUE(other->settle(20s));
    return all;
  }

 private:
  QTemporaryDir temporary_;
};

TEST_F(Kept, HoldsWhatCameLastForItsUserAlone) {
  auto own = file();
  for (const char* content : {"a\n", "b\n", "c\n"}) own->keep(content);
  ASSERT_TRUE(own->settle(20s));
  EXPECT_EQ(left().size(), 0) << "its program runs";
  for (const QString& name : names().filter(QRegularExpression(u"\\.x$"_s)))
    EXPECT_EQ(QFile::permissions(folder() + u'/' + name) & 0x0077, QFile::Permissions());
  own.reset();
  ASSERT_EQ(left().size(), 1);
  EXPECT_TRUE(left().first().whole);
  EXPECT_EQ(left().first().content, "c\n");

  auto one = file();
  auto two = file();
  const QString path = left().first().path;
  EXPECT_TRUE(one->take(path, 20s).has_value());
  EXPECT_FALSE(two->take(path, 20s).has_value()) << "another program has it";
  one->keep("d\n");
  one->giveBack();
  ASSERT_TRUE(one->settle(20s));
  EXPECT_EQ(two->take(path, 20s)->content, "d\n");
  two->keep("e\n");
  two->drop();
  two->keep("f\n");
  two->drop();
  ASSERT_TRUE(two->settle(20s));
  EXPECT_EQ(names(), QStringList());
}

TEST_F(Kept, ReportsAFileThatIsNotWholeAndRemovesWhatAKilledProgramLeft) {
  file()->keep("line\nline\n");
  ASSERT_EQ(left().size(), 1);
  const QString path = left().first().path;
  QFile whole(path);
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  const QByteArray bytes = whole.readAll();
  const auto put = [](const QString& name, const QByteArray& content) {
    QFile broken(name);
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write(content);
  };
  for (qsizetype size = 0; size < bytes.size(); ++size) {
    put(path, bytes.first(size));
    ASSERT_EQ(left().size(), 1);
    EXPECT_FALSE(left().first().whole) << size;
  }
  put(path, bytes);
  for (const auto& litter : {u".AbCdEf"_s, u".trava"_s}) put(path + litter, "1\n");
  ASSERT_EQ(left().size(), 1);
  EXPECT_TRUE(left().first().whole);
  EXPECT_EQ(names().size(), 1) << names().join(u' ').toStdString();
  // What bears no such name is nobody's, whatever it is called.
  const QStringList others{u"copia.x"_s, u"copia.x.bak"_s, u"*.x"_s, u"20260101-000000-000-1.x.bak"_s,
                           u"20260101-000000-000-1.x.AbCdEf~"_s};
  for (const QString& other : others) put(folder() + u'/' + other, "1\n");
  ASSERT_TRUE(QFile::link(path, folder() + u"/20260101-000000-000-2.x"_s));
  put(path + u".AbCdEf"_s, "1\n");
  ASSERT_EQ(left().size(), 1);
  EXPECT_EQ(left().first().path, path);
  EXPECT_EQ(names().size(), others.size() + 2) << names().join(u' ').toStdString();
  // A pipe by such a name is not waited for.
  put(path + u".AbCdEf"_s, "1\n");
  ASSERT_TRUE(QFile::remove(path) && ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0);
  const auto found = left();
  EXPECT_TRUE(found.size() == 1 && !found.first().whole);
}

TEST_F(Kept, ChangesNoRightsThroughALinkInItsPlace) {
  const QString target = folder() + u"/../elsewhere"_s;
  ASSERT_TRUE(QDir().mkpath(target) && QDir().mkpath(folder() + u"/.."_s));
  QDir().rmdir(folder());
  ASSERT_TRUE(QFile::link(QFileInfo(target).absoluteFilePath(), folder()));
  const auto rights = QFile::Permissions(0x7755);
  ASSERT_TRUE(QFile::setPermissions(target, rights));
  auto own = file();
  own->keep("a\n");
  ASSERT_TRUE(own->settle(20s));
  EXPECT_EQ(QFile::permissions(target), rights);
  EXPECT_EQ(QDir(target).entryList({u"*.x"_s}).size(), 1);
}

TEST_F(Kept, HoldsNobodyUpOnASlowDisk) {
  auto own = file();
  own->look([](const auto&) { std::this_thread::sleep_for(300ms); });
  QElapsedTimer since;
  since.start();
  for (int i = 0; i < 100; ++i) own->keep(QByteArray::number(i) + '\n');
  EXPECT_LT(since.elapsed(), 200);
  EXPECT_FALSE(own->settle(10ms));
  ASSERT_TRUE(own->settle(20s));
  own.reset();
  EXPECT_EQ(left().first().content, "99\n");
}

}  // namespace
