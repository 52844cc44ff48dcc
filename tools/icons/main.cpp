// Writes the program's picture in the sizes of an icon theme, FOLDER/48x48/apps/zarim.png and so on, and all
// of them as Windows wants them, FOLDER/zarim.ico.

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

#include "shared/program_icon.h"

using namespace Qt::StringLiterals;

namespace {

/// An icon file: a head, an entry of 16 bytes for each picture, the pictures.
bool writeIcon(const QString& name, const QList<QByteArray>& pictures, const QList<int>& sides) {
  constexpr quint32 kHead = 6, kEntry = 16;
  constexpr quint16 kIcon = 1, kPlanes = 1, kDepth = 32;
  QFile file(name);
  if (!file.open(QIODevice::WriteOnly)) return false;
  QDataStream out(&file);
  out.setByteOrder(QDataStream::LittleEndian);
  out << quint16{0} << kIcon << static_cast<quint16>(pictures.size());
  auto place = kHead + kEntry * static_cast<quint32>(pictures.size());
  for (qsizetype i = 0; i < pictures.size(); ++i) {
    const auto side = static_cast<quint8>(sides[i]);  // 256 is written as 0
    const auto size = static_cast<quint32>(pictures[i].size());
    out << side << side << quint16{0} << kPlanes << kDepth << size << place;
    place += size;
  }
  for (const QByteArray& picture : pictures)
    out.writeRawData(picture.constData(), static_cast<int>(picture.size()));
  return file.flush();
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr,
                 "zarim_icons FOLDER: writes FOLDER/16x16/apps/zarim.png and the other sizes\n"
                 "zarim_icons FILE.ico: writes all of them into one file\n");
    return 2;
  }
  const QString target = QString::fromLocal8Bit(argv[1]);
  const bool oneFile = target.endsWith(u".ico"_s);
  const QList<int> sides{16, 22, 24, 32, 48, 64, 128, 256};
  QList<QByteArray> pictures;
  bool good = true;
  for (const int side : sides) {
    QBuffer buffer(&pictures.emplace_back());
    good = good && imagemDoPrograma(side).save(&buffer, "PNG");
    if (oneFile) continue;
    const QString folder = target + u"/%1x%1/apps"_s.arg(side);
    QFile file(folder + u"/zarim.png"_s);
    good = good && QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) &&
           file.write(buffer.data()) == buffer.size();
  }
  if (good && (!oneFile || writeIcon(target, pictures, sides))) return EXIT_SUCCESS;
  std::fprintf(stderr, "%s can't be written\n", qPrintable(target));
  return EXIT_FAILURE;
}
