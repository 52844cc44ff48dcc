#pragma once

#include <QString>

class QWidget;

// The boxes of the program.

/// A notice or a refusal: information icon, the title above unless another is given.
void avisa(const QString& texto);
void avisa(const QString& texto, const QString& titulo);
/// A refusal that sends the focus to a control.
void avisa(const QString& texto, QWidget* foco);
/// A fault: critical icon.
void avisaFalha(const QString& texto);
/// A question with Yes and No; whether the answer was Yes.
[[nodiscard]] bool pergunta(const QString& texto);
[[nodiscard]] bool pergunta(const QString& texto, const QString& titulo);
/// One whose Yes loses something: Enter is No.
[[nodiscard]] bool perguntaComCuidado(const QString& texto);
