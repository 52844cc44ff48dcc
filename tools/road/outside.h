#pragma once

#include <QString>

#include "road/road_file.h"

// What steps do outside the program, with a connection of their own.
namespace road {

/// Sets how to find the database while the program isn't running: its command line.
void setCommandLine(const QString& commandLine);

void runSql(const QString& statement);
/// First column of the first row as text; empty when there is no row.
[[nodiscard]] QString askSql(const QString& statement);

void expectFileContains(const QString& path, const QString& text);

/// Messages that the mail catcher has kept, by what they have to have: from, to, subject, contains,
/// attachment, each with a text, and count. Raises Failure when there is none, or another count.
void expectMail(const Words& words);

}  // namespace road
