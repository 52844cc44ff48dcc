#pragma once

#include <QApplication>
#include <QString>

/// Runs the program with a command line ("7^0^PRD^") until its main window is unloaded; the exit status.
/// The start object is the quote screen: its load is the start sequence.
int executaPrograma(QApplication& aplicacao, const QString& linhaComando);
