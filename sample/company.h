#pragma once

#include <QCommandLineParser>
#include <QDate>
#include <QString>

#include "platform/data/connection.h"

// The sample company: an installation that the program can work with at once, under a folder that stands for
// drive C.
namespace sample {

/// Path of the embedded database as server.ini names it.
inline const QString kDatabase = QStringLiteral("c:\\zarim\\dados\\zarim.db");

/// Whether the folder holds an installation, the sample's or another.
[[nodiscard]] bool isInstalled(const QString& folder);

struct Wishes {
  QDate day;           ///< all dates count from it
  QString mailServer;  ///< "host:port"; empty: the one that the rows name
  /// Where the picture folders are on the web ("http://127.0.0.1:2580/"); empty: documents for outside name
  /// files.
  QString webPictures;
};

/// The options that say them (wishes.cpp).
void addWishes(QCommandLineParser& parser);
/// What was wished. Ends the program with a message where the day is none (wishes.cpp).
[[nodiscard]] Wishes wishesOf(const QCommandLineParser& parser);

/// Makes the sample company under the folder: configuration, database, pictures, empty documents folder, and
/// a mark that lists these files. Where the company's place is taken it raises 75 and changes nothing, unless
/// `fresh` is set and the mark is there: then the files that the mark lists are made anew and all others
/// stay. A QGuiApplication must be there. Raises values::RuntimeError.
void install(const QString& folder, const Wishes& wishes, bool fresh = false);

/// Has the company's row name the mail server that was wished.
void setMailServer(data::Connection& connection, const Wishes& wishes);

}  // namespace sample
