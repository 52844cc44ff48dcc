#include "shared/messages.h"

#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "run/program_title.h"

void avisa(const QString& texto) { avisa(texto, kTitulo); }

void avisa(const QString& texto, const QString& titulo) {
  forms::msgBox({.text = texto, .title = titulo, .icon = forms::Icon::Information});
}

void avisa(const QString& texto, QWidget* foco) {
  avisa(texto);
  forms::Form::focus(foco);
}

void avisaFalha(const QString& texto) {
  forms::msgBox({.text = texto, .title = kTitulo, .icon = forms::Icon::Critical});
}

bool pergunta(const QString& texto) { return pergunta(texto, kTitulo); }

bool pergunta(const QString& texto, const QString& titulo) {
  return forms::msgBox({.text = texto, .title = titulo, .buttons = forms::Buttons::YesNo}) ==
         forms::Answer::Yes;
}

bool perguntaComCuidado(const QString& texto) {
  return forms::msgBox({.text = texto,
                        .title = kTitulo,
                        .buttons = forms::Buttons::YesNo,
                        .usual = forms::Answer::No}) == forms::Answer::Yes;
}
