#pragma once

#include "platform/forms/form.h"

// The colours and the place of the program's windows.

/// Back colours of boxes that wait for input, and of frozen ones.
inline constexpr forms::ColorNumber kCorEntrada = 0xC0FFFF;
inline constexpr forms::ColorNumber kCorCongelada = 0x80000000;
inline constexpr forms::ColorNumber kCorJanela = 0x80000005;
inline constexpr forms::ColorNumber kVermelho = 255;
inline constexpr forms::ColorNumber kLaranja = 33023;

/// Reads a theme into the context: colours of the row of that name, the system's where there is none.
void LeCoresSistema(const QString& nome);
/// The four colours on a form: its ground, frames and labels both colours, buttons, text boxes, options and
/// checks the ground.
void AplicaCoresForm(forms::Form& tela);
/// Reads the theme of COR_PADRAO and applies it.
void aplicaTemaPadrao(forms::Form& tela);

/// Sets top and left to the middle of the screen.
void CentralizaForm(forms::Form& tela);
