#pragma once

#include <QDate>
#include <QString>

// The sample company: an installation that the program can work with at once, under a folder that stands for
// drive C.
namespace sample {

/// Path of the embedded database as server.ini names it.
inline constexpr char16_t kDatabase[] = u"c:\\zarim\\dados\\zarim.db";

/// Whether the folder holds an installation.
[[nodiscard]] bool isInstalled(const QString& folder);

struct Wishes {
  QDate day;           ///< all dates count from it
  QString mailServer;  ///< "host:port"; empty: the one that the rows name
  /// Where the picture folders are on the web ("http://127.0.0.1:2580/"); empty: documents for outside name
  /// files.
  QString webPictures;
};

/// Makes the sample company under the folder, in place of one that is there: configuration, database,
/// pictures, empty documents folder. A QGuiApplication must be there. Raises values::RuntimeError.
void install(const QString& folder, const Wishes& wishes);

/// Puts schema and rows on the server that the installation's server.ini names for production; with fresh,
/// the tables that are there go first. Ends the program with a message when the server does not answer.
void fillServer(const QString& folder, const Wishes& wishes, bool fresh);

}  // namespace sample
