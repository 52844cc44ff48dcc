#pragma once

#include <QProcess>

// What a road's walk asks of the system.
namespace road {

/// The display that a road is walked on, as QT_QPA_PLATFORM names it: one in memory, of 1024 by 768, or of
/// 1366 by 768 where QT_SCALE_FACTOR enlarges it; on Windows the desktop.
[[nodiscard]] QByteArray display();

/// Lets a walk that is ended from outside, as by a time-out, take its files away first.
void watchForEnd();
/// The signal that asked for the end; 0 as long as none has.
[[nodiscard]] int askedToEnd();

/// A child that will be started is not left alone when this process is killed.
void bindToThis(QProcess& child);

}  // namespace road
