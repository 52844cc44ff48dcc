#include <cmath>
#include <cstddef>
#include <vector>

#include "documents/document_values.h"
#include "draft/keeper.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/stored_content.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// A quote goes to the database whole, in one transaction: the header, then all items with their numbers, then
// what hangs on these. Nothing is rolled back here: after an error the process ends, and the open transaction
// with it.

namespace {

using Comandos = std::vector<data::Statement>;

std::vector<data::Recordset> executa(const Comandos& comandos) { return contexto().Conexao.batch(comandos); }

QString numeroGravado(const data::Recordset& rs, QStringView campo) {
  return rs.eof() ? u"0"_s : rs.text(campo);
}

QString deleteDe(const QString& tabela, const QString& idOrcamento) {
  return u"DELETE FROM "_s + tabela + u" WHERE (idPROP_CMRC="_s + idOrcamento + u")"_s;
}
QString MontaDeleteDetalhes(const QString& id) { return deleteDe(u"PROP_CMRC_DETA"_s, id); }
QString MontaDeleteMontagem(const QString& id) { return deleteDe(u"PROP_CMRC_DETA_MONTA"_s, id); }
QString MontaDeleteHomenageados(const QString& id) { return deleteDe(u"PROP_CMRC_HOMG"_s, id); }

/// Marks an approved prototype; the mark stays even if the approval is taken back later.
QString AprovaPrototipo(const QString& idProt, const QString& idOrcamento, const QString& dataAprovacao) {
  return TiraAcentos(u"UPDATE PROT SET PROP_CMRC_APRV = '"_s + idOrcamento + u"', DATA_APRV = '"_s +
                     values::formatDate(dataAprovacao, u"yyyymmdd hh:mm") + u"' WHERE IDPROT = "_s + idProt);
}

/// Commits a save; the draft of the quote bears its mark meanwhile.
void confirma(const QString& id, const QString& gravado) {
  rascunho::guarda().marcaGravacao({id, gravado});
  contexto().Conexao.commit();
  rascunho::guarda().gravado();
}

void avisaGravado(const QString& id) { avisa(u"Registro Gravado com sucesso!\rOrçamento nr."_s + id); }

/// Rows of the materials by the item row that they are tied to, in the grid's order, in one pass.
std::vector<std::vector<int>> materiaisPorItem(const forms::GridModel& montagem, int linhas) {
  std::vector<std::vector<int>> porItem(static_cast<std::size_t>(linhas));
  for (int linha = 1; linha < montagem.rows(); ++linha) {
    const double vinculo = leNumero(montagem.text(linha, grades::material::VinculoComFlex));
    if (vinculo < 1 || vinculo >= linhas || vinculo != std::floor(vinculo)) continue;
    porItem[static_cast<std::size_t>(vinculo)].push_back(linha);
  }
  return porItem;
}

}  // namespace

void frmPropCmrcTL::cmdSALVAR_Click() {
  if (apara(cboRespAtendimento->text()).isEmpty())
    return avisa(u"[Campo Obrigatório] - Responsável pelo Atendimento"_s, cboRespAtendimento);
  if (Flex->grid().rows() <= 1) return avisa(u"Quantidade de Itens Inválida!!!"_s, txtCodProduto);
  if (!confirmaDatas()) return;
  TravaCampos();
  if (situacao::incluindo())
    gravaNovo();
  else if (situacao::alterando())
    gravaAlteracao();
  TravaCampos();
  BotoesNeutros();
  LimpaTela();
  contexto().ModoItem.clear();
}

void frmPropCmrcTL::gravaNovo() {
  QString id;
  {
    const forms::WaitPointer espera;
    contexto().Conexao.begin();
    const auto resultados = executa(
        {{maiusculas(MontaInsertOrcamento())}, {maiusculas(u"SELECT @@identity as 'MaxPropCmrc'"_s)}});
    id = numeroGravado(resultados.back(), u"MaxPropCmrc");
    confirma(id, gravaLinhas(id, Caixa::Maiuscula));
  }
  avisaGravado(id);
  situacao::encerra();
  documento().IdDocumento = values::toInt32(leNumero(id));
  txtCodigo->setText(id);
}

void frmPropCmrcTL::gravaAlteracao() {
  const QString id = txtRowId->text();
  {
    const forms::WaitPointer espera;
    contexto().Conexao.begin();
    executa({{maiusculas(MontaUpdateOrcamento())},
             {MontaDeleteDetalhes(id)},
             {MontaDeleteMontagem(id)},
             {MontaDeleteHomenageados(id)}});
    // Remarks of items and names of honorees keep their case when a quote is altered.
    confirma(id, gravaLinhas(id, Caixa::ComoDigitada));
  }
  avisaGravado(id);
  situacao::encerra();
}

/// All items and their numbers.
QStringList frmPropCmrcTL::gravaItens(const QString& idOrcamento, Caixa caixa) {
  Comandos comandos;
  for (int linha = 1; linha < Flex->grid().rows(); ++linha) {
    const QString insert = MontaInsertDetalhe(idOrcamento, linha);
    comandos.push_back({caixa == Caixa::Maiuscula ? maiusculas(insert) : insert});
    comandos.push_back({maiusculas(u"SELECT @@identity as 'MaxPropCmrcDeta'"_s)});
  }
  const auto resultados = executa(comandos);
  QStringList ids;
  for (std::size_t i = 1; i < resultados.size(); i += 2)
    ids << numeroGravado(resultados[i], u"MaxPropCmrcDeta");
  return ids;
}

QString frmPropCmrcTL::gravaLinhas(const QString& idOrcamento, Caixa caixa) {
  using namespace grades;
  const forms::GridModel& itens = Flex->grid();
  const QStringList ids = gravaItens(idOrcamento, caixa);
  const auto materiais = materiaisPorItem(FlexMonta, itens.rows());
  Comandos comandos;
  for (int linha = 1; linha < itens.rows(); ++linha) {
    const QString aprovacao = itens.text(linha, item::DtAprov);
    if (values::isDate(aprovacao) && itens.text(linha, item::Tipo) == kPrototipo)
      comandos.push_back({AprovaPrototipo(itens.text(linha, item::Id), idOrcamento, aprovacao)});
    for (const int material : materiais[static_cast<std::size_t>(linha)])
      comandos.push_back({maiusculas(montaInsertMontagem(idOrcamento, ids[linha - 1], material))});
  }
  for (int linha = 1; linha < FlexHomg->grid().rows(); ++linha) {
    const QString insert = MontaInsertHomenageado(idOrcamento, linha);
    comandos.push_back({caixa == Caixa::Maiuscula ? maiusculas(insert) : insert});
  }
  if (!rascunho::guarda().temRascunho()) {
    executa(comandos);
    return {};
  }
  // What its draft is known by is read back with the rest.
  const auto leituras = conteudo::leituras(idOrcamento);
  comandos.insert(comandos.end(), leituras.begin(), leituras.end());
  const auto resultados = executa(comandos);
  return conteudo::resumo({resultados.end() - std::ssize(leituras), resultados.end()});
}
