#include "shared/theme.h"

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
#include <QToolButton>
#include <array>

#include "platform/values/numbers.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

// The system's own colours, as colour numbers in text.
const QString kFaceBotao = u"-2147483633"_s;
const QString kTextoBotao = u"-2147483630"_s;

enum class Tipo { QuadroOuRotulo, Fundo, Outro };

/// How the theme sees a control. What other controls are made of (the line of a combo, the buttons of a tab
/// bar) is no control of the form, and masked boxes, grids and combos keep their own colours.
Tipo tipoDe(const QWidget* controle) {
  const QWidget* dono = controle->parentWidget();
  if (qobject_cast<const QComboBox*>(dono) || qobject_cast<const QTabBar*>(dono)) return Tipo::Outro;
  if (qobject_cast<const forms::MaskedBox*>(controle)) return Tipo::Outro;
  if (qobject_cast<const QLabel*>(controle) || qobject_cast<const QGroupBox*>(controle) ||
      controle->metaObject() == &QFrame::staticMetaObject)
    return Tipo::QuadroOuRotulo;
  const bool deFundo =
      qobject_cast<const QPushButton*>(controle) || qobject_cast<const QToolButton*>(controle) ||
      qobject_cast<const QRadioButton*>(controle) || qobject_cast<const QCheckBox*>(controle) ||
      qobject_cast<const QLineEdit*>(controle) || qobject_cast<const QPlainTextEdit*>(controle);
  return deFundo ? Tipo::Fundo : Tipo::Outro;
}

}  // namespace

void LeCoresSistema(const QString& nome) {
  Contexto& c = contexto();
  const struct {
    QStringView coluna;
    QString& cor;
    QString padrao;
  } cores[] = {{u"CODI_BACK_0001", c.CorFundo, kFaceBotao},
               {u"CODI_FORE_0001", c.CorFrente, kTextoBotao},
               {u"CODI_BACK_0002", c.CorFundo2, kFaceBotao},
               {u"CODI_FORE_0002", c.CorFrente2, kTextoBotao}};
  const auto rs = abreConsulta(u"select * from cor_sist where DESC_COR_SIST = '"_s + apara(nome) + u"'"_s);
  for (const auto& uma : cores) {
    uma.cor = rs.eof() ? QString() : rs.text(uma.coluna);
    if (uma.cor.isEmpty()) uma.cor = uma.padrao;
  }
}

void AplicaCoresForm(forms::Form& tela) {
  const auto numero = [](const QString& texto) { return values::toInt64(leNumero(texto)); };
  const Contexto& c = contexto();
  const auto fundo = numero(c.CorFundo), frente = numero(c.CorFrente);
  forms::setBackColor(&tela, fundo);
  const auto controles = tela.findChildren<QWidget*>();
  for (QWidget* controle : controles) {
    const Tipo tipo = tipoDe(controle);
    if (tipo == Tipo::Outro) continue;
    forms::setBackColor(controle, fundo);
    if (tipo == Tipo::QuadroOuRotulo) forms::setForeColor(controle, frente);
  }
}

void aplicaTemaPadrao(forms::Form& tela) {
  const forms::WaitPointer espera;
  LeCoresSistema(waitFor(ParametroEmpresa(u"COR_PADRAO"_s)));
  AplicaCoresForm(tela);
}

void CentralizaForm(forms::Form& tela) { tela.centre(); }
