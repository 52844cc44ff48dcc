// What the entry of the Start menu starts. Where a company is set up its menu says who the user is: the
// arguments go on as they are. Elsewhere the sample company is put into the user's local profile and opened.
#include <qt_windows.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

#include "platform/files/drives.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QString here = QCoreApplication::applicationDirPath();
  QStringList arguments = QCoreApplication::arguments().mid(1);
  if (!qEnvironmentVariableIsSet("ZARIM_DRIVE_C") && !QFileInfo::exists(u"c:/zarim/config/server.ini"_s)) {
    const QString drive = files::profileFolder() + u"/drive_c"_s;
    QProcess installer;
    installer.start(here + u"/zarim_install.exe"_s, {u"--to"_s, drive});
    if (!installer.waitForFinished(-1) || installer.exitCode() != 0) {
      const std::wstring text = u"A empresa de exemplo não pôde ser instalada.\n%1"_s
                                    .arg(QString::fromUtf8(installer.readAllStandardError()))
                                    .toStdWString();
      ::MessageBoxW(nullptr, text.c_str(), L"Zarim", MB_OK | MB_ICONERROR);
      return 1;
    }
    files::standForDriveC(drive);
    if (arguments.isEmpty()) arguments << u"7^0^PRD^"_s;
  }
  if (arguments.isEmpty()) arguments << u"--menu"_s;  // says that the ERP's menu opens the program
  return QProcess::startDetached(here + u"/zarim.exe"_s, arguments) ? 0 : 1;
}
