#include "quote/stored_content.h"

#include <QCryptographicHash>
#include <QHash>
#include <QStringList>
#include <algorithm>

#include "quote/header_fields.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace conteudo {

namespace {

constexpr QStringView kLinha = u"idprop_cmrc_deta";
constexpr QChar kFim = u'\n';

data::Statement leitura(const QStringList& colunas, const QString& tabela, const QString& idOrcamento) {
  return {maiusculas(u"select "_s + colunas.join(u", ") + u" from "_s + tabela + u" where idprop_cmrc = '"_s +
                     idOrcamento + u"'"_s)};
}

/// The lines' ids, by the order in which they were given.
QHash<QString, QString> ordemDasLinhas(data::Recordset linhas) {
  QStringList ids;
  for (; !linhas.eof(); linhas.moveNext()) ids << linhas.text(kLinha);
  std::ranges::sort(ids, {}, [](const QString& id) { return id.toLongLong(); });
  QHash<QString, QString> ordem;
  for (const QString& id : ids) ordem.insert(id, QString::number(ordem.size()));
  return ordem;
}

}  // namespace

std::vector<data::Statement> leituras(const QString& idOrcamento) {
  QStringList colunas;
  for (const QStringView coluna : cabecalho::ordemDaAlteracao()) colunas << coluna.toString();
  const QString linha = kLinha.toString();
  return {leitura(colunas, u"prop_cmrc"_s, idOrcamento),
          leitura({linha, u"idprodprot"_s, u"prod_prot"_s, u"qtde"_s, u"valo_unit"_s, u"valo_dect"_s,
                   u"valo_liqu"_s, u"valo_tota"_s, u"data_aprov"_s, u"obse_prop_cmrc_deta"_s},
                  u"prop_cmrc_deta"_s, idOrcamento),
          leitura({linha, u"idprod"_s, u"qtde"_s, u"unid_medi"_s, u"qtde_unid_medi"_s, u"valo_unit"_s,
                   u"valo_tota"_s, u"tipo_mate_prima"_s, u"obse_prop_cmrc_deta_monta"_s},
                  u"prop_cmrc_deta_monta"_s, idOrcamento),
          leitura({u"nome_homg"_s}, u"prop_cmrc_homg"_s, idOrcamento)};
}

QString resumo(const std::vector<data::Recordset>& lidos) {
  if (lidos.at(0).eof()) return {};
  const auto ordem = ordemDasLinhas(lidos.at(1));
  QCryptographicHash soma(QCryptographicHash::Sha1);
  for (data::Recordset tabela : lidos) {
    QStringList linhas;
    for (; !tabela.eof(); tabela.moveNext()) {
      QString linha;
      for (const QString& coluna : tabela.columns()) {
        const QString valor = tabela.text(coluna);
        const bool id = coluna.compare(kLinha, Qt::CaseInsensitive) == 0;
        linha += (id ? ordem.value(valor) : valor) + u'\0';
      }
      linhas << linha;
    }
    // A database gives rows in any order.
    linhas.sort();
    soma.addData((linhas.join(kFim) + kFim + u'\0').toUtf8());
  }
  return QString::fromLatin1(soma.result().toHex());
}

}  // namespace conteudo
