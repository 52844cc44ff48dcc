#pragma once

#include "platform/forms/boxes.h"
#include "platform/forms/form.h"

// What all screens of the program share: theme, lists, messages.

/// Back colours of boxes that wait for input, and of frozen ones.
inline constexpr forms::ColorNumber kCorEntrada = 0xC0FFFF;
inline constexpr forms::ColorNumber kCorCongelada = 0x80000000;
inline constexpr forms::ColorNumber kCorJanela = 0x80000005;
inline constexpr forms::ColorNumber kVermelho = 255;
inline constexpr forms::ColorNumber kLaranja = 33023;

/// A notice or a refusal: information icon, the title above unless another is given.
void Aviso(const QString& texto);
void Aviso(const QString& texto, const QString& titulo);
/// A refusal that sends the focus to a control.
void Aviso(const QString& texto, QWidget* foco);
/// A fault: critical icon.
void Falha(const QString& texto);
/// A question with Yes and No; whether the answer was Yes.
[[nodiscard]] bool Pergunta(const QString& texto);
[[nodiscard]] bool Pergunta(const QString& texto, const QString& titulo);

/// Reads a theme into the context: colours of the row of that name, the system's where there is none.
void LeCoresSistema(const QString& nome);
/// The four colours on a form: its ground, frames and labels both colours, buttons, text boxes, options and
/// checks the ground.
void AplicaCoresForm(forms::Form& form);
/// Reads the theme of COR_PADRAO and applies it.
void AplicaTemaPadrao(forms::Form& form);

/// Sets top and left to the middle of the screen.
void CentralizaForm(forms::Form& form);
