#include "quote/frmPropCmrcTL.h"
#include "run/context.h"

using namespace Qt::StringLiterals;

namespace {

struct Situacao {
  const char16_t* texto;
  forms::ColorNumber fundo;
};
// Dark enough for white letters on any theme.
constexpr Situacao kNovo{u"Novo orçamento", 0x2F6B1E};
constexpr Situacao kAlterando{u"Em alteração", 0x0050B4};
constexpr Situacao kDesativado{u"Desativado", 0x2020B0};
constexpr Situacao kFechado{u"Fechado", 0x8C4A1B};
constexpr Situacao kNaoCarregado{u"Nr. %1 não carregado", 0x702870};
constexpr Situacao kAberto{u"Aberto", 0x606060};
constexpr forms::ColorNumber kBranco = 0xFFFFFF;

}  // namespace

void frmPropCmrcTL::mostraSituacao() {
  mostraOferta();
  const Situacao* situacao = nullptr;
  if (cmdSALVAR->isEnabled())
    situacao = contexto().ModoOrcamento == u"I" ? &kNovo : &kAlterando;
  else if (faltaCarregar())
    situacao = &kNaoCarregado;
  else if (!lblDTDesativa->text().isEmpty())
    situacao = &kDesativado;
  else if (!lblDataFechamento->text().isEmpty())
    situacao = &kFechado;
  else if (!txtRowId->text().isEmpty())
    situacao = &kAberto;

  lblSituacao->setVisible(situacao != nullptr);
  if (situacao == nullptr) return;
  lblSituacao->setText(QString::fromUtf16(situacao->texto).replace(u"%1"_s, txtRowId->text()));
  forms::setBackColor(lblSituacao, situacao->fundo);
  forms::setForeColor(lblSituacao, kBranco);
}
