#include "shared/screen_kit.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>
#include <array>

#include "platform/values/numbers.h"
#include "run/context.h"
#include "run/program_title.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

QString titulo() { return QString::fromUtf16(kTitulo); }

// The system's own colours, as colour numbers in text.
constexpr const char16_t* kFaceBotao = u"-2147483633";
constexpr const char16_t* kTextoBotao = u"-2147483630";

enum class Kind { FrameOrLabel, Ground, Other };

/// How the theme sees a control. What other controls are made of (the line of a combo, the buttons of a tab
/// bar) is no control of the form, and masked boxes, grids and combos keep their own colours.
Kind kindOf(const QWidget* control) {
  const QWidget* parent = control->parentWidget();
  if (qobject_cast<const QComboBox*>(parent) || qobject_cast<const QTabBar*>(parent)) return Kind::Other;
  if (qobject_cast<const forms::MaskedBox*>(control)) return Kind::Other;
  if (qobject_cast<const QLabel*>(control) || qobject_cast<const QGroupBox*>(control) ||
      control->metaObject() == &QFrame::staticMetaObject)
    return Kind::FrameOrLabel;
  const bool ground = qobject_cast<const QPushButton*>(control) ||
                      qobject_cast<const QToolButton*>(control) ||
                      qobject_cast<const QRadioButton*>(control) || qobject_cast<const QCheckBox*>(control) ||
                      qobject_cast<const QLineEdit*>(control) ||
                      qobject_cast<const QPlainTextEdit*>(control) || qobject_cast<const QTextEdit*>(control);
  return ground ? Kind::Ground : Kind::Other;
}

}  // namespace

void Aviso(const QString& texto) { Aviso(texto, titulo()); }

void Aviso(const QString& texto, const QString& titulo) {
  forms::msgBox({.text = texto, .title = titulo, .icon = forms::Icon::Information});
}

void Aviso(const QString& texto, QWidget* foco) {
  Aviso(texto);
  forms::Form::focus(foco);
}

void Falha(const QString& texto) {
  forms::msgBox({.text = texto, .title = titulo(), .icon = forms::Icon::Critical});
}

bool Pergunta(const QString& texto) { return Pergunta(texto, titulo()); }

bool Pergunta(const QString& texto, const QString& titulo) {
  return forms::msgBox({.text = texto, .title = titulo, .buttons = forms::Buttons::YesNo}) ==
         forms::Answer::Yes;
}

void LeCoresSistema(const QString& nome) {
  RunContext& run = contexto();
  const struct {
    const char16_t* column;
    QString& color;
    const char16_t* standard;
  } colors[] = {{u"CODI_BACK_0001", run.CorFundo, kFaceBotao},
                {u"CODI_FORE_0001", run.CorFrente, kTextoBotao},
                {u"CODI_BACK_0002", run.CorFundo2, kFaceBotao},
                {u"CODI_FORE_0002", run.CorFrente2, kTextoBotao}};
  const auto rs = AbreConsulta(u"select * from cor_sist where DESC_COR_SIST = '"_s + Apara(nome) + u"'"_s);
  for (const auto& one : colors) {
    one.color = rs.eof() ? QString() : rs.text(one.column);
    if (one.color.isEmpty()) one.color = QString::fromUtf16(one.standard);
  }
}

void AplicaCoresForm(forms::Form& form) {
  const auto number = [](const QString& text) { return values::toInt64(LeNumero(text)); };
  const auto back = number(contexto().CorFundo);
  const auto fore = number(contexto().CorFrente);
  forms::setBackColor(&form, back);
  const auto controls = form.findChildren<QWidget*>();
  for (QWidget* control : controls) {
    const Kind kind = kindOf(control);
    if (kind == Kind::Other) continue;
    forms::setBackColor(control, back);
    if (kind == Kind::FrameOrLabel) forms::setForeColor(control, fore);
  }
}

void AplicaTemaPadrao(forms::Form& form) {
  const forms::WaitPointer wait;
  LeCoresSistema(ParametroEmpresa(u"COR_PADRAO"_s));
  AplicaCoresForm(form);
}

void CentralizaForm(forms::Form& form) { form.centre(); }
