#include <cmath>
#include <cstddef>
#include <vector>

#include "documents/document_values.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/screen_kit.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

// A quote goes to the database whole, in one transaction. Nothing is rolled back here: after an error the
// process ends, and the open transaction with it.

namespace {

void executa(const QString& sql) { contexto().Conexao.execute(sql); }

QString idGravado(const QString& sql, QStringView campo) {
  const data::Recordset rs = AbreConsulta(sql);
  return rs.eof() ? u"0"_s : rs.text(campo);
}

void avisaGravado(const QString& id) { Aviso(u"Registro Gravado com sucesso!\rOrçamento nr."_s + id); }

/// Rows of the materials by the item row that they are tied to, in the grid's order, in one pass.
std::vector<std::vector<int>> materiaisPorItem(const forms::GridModel& montagem, int linhas) {
  std::vector<std::vector<int>> porItem(static_cast<std::size_t>(linhas));
  for (int linha = 1; linha < montagem.rows(); ++linha) {
    const double vinculo = LeNumero(montagem.text(linha, grids::material::VinculoComFlex));
    if (vinculo < 1 || vinculo >= linhas || vinculo != std::floor(vinculo)) continue;
    porItem[static_cast<std::size_t>(vinculo)].push_back(linha);
  }
  return porItem;
}

}  // namespace

void frmPropCmrcTL::cmdSALVAR_Click() {
  if (Apara(cboRespAtendimento->text()).isEmpty())
    return Aviso(u"[Campo Obrigatório] - Responsável pelo Atendimento"_s, cboRespAtendimento);
  if (Flex->grid().rows() <= 1) return Aviso(u"Quantidade de Itens Inválida!!!"_s, txtCodProduto);
  TravaCampos();
  if (contexto().ModoOrcamento == u"I")
    gravaNovo();
  else if (contexto().ModoOrcamento == u"A")
    gravaAlteracao();
  TravaCampos();
  BotoesNeutros();
  LimpaTela();
  contexto().ModoItem.clear();
}

void frmPropCmrcTL::gravaNovo() {
  RunContext& c = contexto();
  QString id;
  {
    const forms::WaitPointer espera;
    c.Conexao.begin();
    MontaInsertOrcamento();
    executa(Maiusculas(c.sqlGravacao));
    id = idGravado(u"SELECT @@identity as 'MaxPropCmrc'"_s, u"MaxPropCmrc");
    gravaItens(id, Caixa::Maiuscula);
    gravaHomenageados(id, Caixa::Maiuscula);
    c.Conexao.commit();
  }
  avisaGravado(id);
  c.ModoOrcamento = u" "_s;
  documento().IdDocumento = values::toInt32(LeNumero(id));
  txtCodigo->setText(id);
}

void frmPropCmrcTL::gravaAlteracao() {
  RunContext& c = contexto();
  const QString id = txtRowId->text();
  {
    const forms::WaitPointer espera;
    c.Conexao.begin();
    MontaUpdateOrcamento();
    executa(Maiusculas(c.sqlGravacao));
    MontaDeleteDetalhes(id);
    executa(c.sqlGravacao);
    MontaDeleteMontagem(id);
    executa(c.sqlGravacao);
    MontaDeleteHomenageados(id);
    executa(c.sqlGravacao);
    // Remarks of items and names of honorees keep their case when a quote is altered.
    gravaItens(id, Caixa::ComoDigitada);
    gravaHomenageados(id, Caixa::ComoDigitada);
    c.Conexao.commit();
  }
  avisaGravado(id);
  c.ModoOrcamento = u" "_s;
}

void frmPropCmrcTL::gravaItens(const QString& idOrcamento, Caixa caixa) {
  using namespace grids;
  RunContext& c = contexto();
  const forms::GridModel& itens = Flex->grid();
  const auto materiais = materiaisPorItem(FlexMonta, itens.rows());
  for (int linha = 1; linha < itens.rows(); ++linha) {
    MontaInsertDetalhe(idOrcamento, linha);
    executa(caixa == Caixa::Maiuscula ? Maiusculas(c.sqlGravacao) : c.sqlGravacao);
    const QString idDetalhe = idGravado(u"SELECT @@identity as 'MaxPropCmrcDeta'"_s, u"MaxPropCmrcDeta");
    const QString aprovacao = itens.text(linha, item::DtAprov);
    if (values::isDate(aprovacao) && itens.text(linha, item::Tipo) == QStringView(kPrototipo))
      AprovaPrototipo(itens.text(linha, item::Id), idOrcamento, aprovacao);
    for (const int material : materiais[static_cast<std::size_t>(linha)]) {
      MontaInsertMontagem(idOrcamento, idDetalhe, material);
      executa(Maiusculas(c.sqlGravacao));
    }
  }
}

void frmPropCmrcTL::gravaHomenageados(const QString& idOrcamento, Caixa caixa) {
  RunContext& c = contexto();
  for (int linha = 1; linha < FlexHomg->grid().rows(); ++linha) {
    MontaInsertHomenageado(idOrcamento, linha);
    executa(caixa == Caixa::Maiuscula ? Maiusculas(c.sqlGravacao) : c.sqlGravacao);
  }
}

/// Marks an approved prototype; the mark stays even if the approval is taken back later.
void frmPropCmrcTL::AprovaPrototipo(const QString& idProt, const QString& idOrcamento,
                                    const QString& dataAprovacao) {
  RunContext& c = contexto();
  c.sqlGravacao = u"UPDATE PROT SET PROP_CMRC_APRV = '"_s + idOrcamento + u"', DATA_APRV = '"_s +
                  values::formatDate(dataAprovacao, u"yyyymmdd hh:mm") + u"' WHERE IDPROT = "_s + idProt;
  executa(TiraAcentos(c.sqlGravacao));
}
