#pragma once

#include <QString>

/// Writes a quote as a word-processor document at `documento`, and as it comes onto paper as PDF at `pdf`.
/// Raises the runtime's error when the letterhead's picture is missing.
void DocumentoWord(const QString& id, const QString& documento, const QString& pdf);

/// Fixed path of the layout trial.
inline const QString kArquivoAmostra = QStringLiteral("C:\\ZARIM\\TESTE_ORCA9.DOC");
/// The layout trial that cmdWord makes: company data, the number and date of a quote, sample lines, saved at
/// its fixed path.
void gravaAmostraWord(qint32 id);
