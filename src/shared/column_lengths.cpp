#include "shared/column_lengths.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <array>

#include "platform/forms/combo.h"
#include "platform/forms/controls.h"
#include "platform/values/runtime_error.h"
#include "run/context.h"
#include "schema/tables.h"

using namespace Qt::StringLiterals;

namespace {

/// The tables that boxes are stored in; no two of their columns of text share a name.
constexpr std::array<QStringView, 4> kTabelas{u"PROP_CMRC", u"PROP_CMRC_DETA", u"PROP_CMRC_DETA_MONTA",
                                              u"PROP_CMRC_HOMG"};

/// Lengths by the schema, by names in capitals.
QHash<QString, int> tamanhosDoEsquema() {
  QHash<QString, int> tamanhos;
  for (const QStringView tabela : kTabelas)
    for (const schema::Column& coluna : schema::find(tabela)->columns)
      if (coluna.type == schema::Type::Text || coluna.type == schema::Type::Memo)
        tamanhos.insert(coluna.name.toUpper(), coluna.length);
  return tamanhos;
}

/// One statement for all of them, which gives no rows.
QString pergunta(const QStringList& colunas) {
  QStringList tabelas;
  for (const QStringView tabela : kTabelas) tabelas << tabela.toString();
  return u"SELECT "_s + colunas.join(u", "_s) + u" FROM "_s + tabelas.join(u", "_s) + u" WHERE 1=0"_s;
}

QHash<QString, int> tamanhosDaConexao() {
  QHash<QString, int> tamanhos = tamanhosDoEsquema();
  if (!contexto().Conexao.isOpen()) return tamanhos;
  try {
    const data::Recordset rs = contexto().Conexao.query(pergunta(tamanhos.keys()));
    for (auto um = tamanhos.begin(); um != tamanhos.end(); ++um)
      if (const int longo = rs.longest(um.key()); longo > 0) um.value() = longo;
  } catch (const values::RuntimeError& erro) {
    // A column that this company's tables lack.
    if (erro.number() != values::kStatementFailed) throw;
  }
  return tamanhos;
}

}  // namespace

int tamanhoDaColuna(QStringView coluna) {
  auto& tamanhos = contexto().tamanhosDeColunas;
  if (!tamanhos) tamanhos = tamanhosDaConexao();
  return tamanhos->value(coluna.toString().toUpper());
}

void limita(QWidget* campo, int maximo) {
  if (auto* combo = qobject_cast<forms::Combo*>(campo)) forms::limitText(combo->lineEdit(), maximo);
  if (auto* caixa = qobject_cast<QLineEdit*>(campo)) forms::limitText(caixa, maximo);
  if (auto* texto = qobject_cast<QPlainTextEdit*>(campo)) forms::limitText(texto, maximo);
}

void limitaPelaColuna(QWidget* campo, QStringView coluna) {
  if (const int maximo = tamanhoDaColuna(coluna); maximo > 0) limita(campo, maximo);
}
