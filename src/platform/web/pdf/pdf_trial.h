#pragma once

#include <QByteArray>

namespace web {

/// Whether every page of a PDF is drawn within a bound of memory and time. Its forms can stand in each other
/// so often that one small page takes all of a machine, and drawing it can't be stopped: so a process of its
/// own draws them first, where the system makes one of this (pdf_trial_unix.cpp).
[[nodiscard]] bool canBeDrawn(const QByteArray& pdf);

}  // namespace web
