#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "assembly/frmConfirmaItem.h"
#include "assembly/frmMontarProduto.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

// Lines of the assembly from a spreadsheet's rows: code, quantity, remark.

using namespace Qt::StringLiterals;
using grades::material::Column;

namespace {

struct Colada {
  qsizetype numero;  ///< of the row that was pasted, from 1
  QString codigo, quantidade, observacao;
};

/// A title without accents, capitals and points.
QString tituloLiso(const QString& celula) {
  QString letras = celula.normalized(QString::NormalizationForm_D).toLower();
  letras.removeIf([](QChar letra) { return !letra.isLetter(); });
  return letras;
}

/// Where code, quantity and remark stand by titles that were copied along; nothing where the row holds none.
std::optional<std::array<qsizetype, 3>> lugaresPelosTitulos(const QStringList& celulas) {
  std::array<qsizetype, 3> lugares{-1, -1, -1};
  for (qsizetype i = celulas.size() - 1; i >= 0; --i) {
    const QString titulo = tituloLiso(celulas[i]);
    if (titulo == u"cod" || titulo.startsWith(u"codigo")) lugares[0] = i;
    if (titulo.startsWith(u"quant") || titulo.startsWith(u"qt")) lugares[1] = i;
    if (titulo.startsWith(u"obs")) lugares[2] = i;
  }
  return lugares[0] < 0 ? std::nullopt : std::optional(lugares);
}

std::vector<Colada> leColadas(const QStringList& linhas) {
  const auto vazia = [](const QString& linha) { return linha.trimmed().isEmpty(); };
  const qsizetype primeira = std::find_if_not(linhas.begin(), linhas.end(), vazia) - linhas.begin();
  const auto titulos = lugaresPelosTitulos(linhas.value(primeira).split(u'\t'));
  const auto lugares = titulos.value_or(std::array<qsizetype, 3>{0, 1, 2});
  std::vector<Colada> coladas;
  for (qsizetype i = titulos ? primeira + 1 : primeira; i < linhas.size(); ++i) {
    if (vazia(linhas[i])) continue;
    const QStringList celulas = linhas[i].split(u'\t');
    const auto celula = [&](int coluna) {
      return apara(celulas.value(lugares.at(static_cast<std::size_t>(coluna))));
    };
    coladas.push_back({i + 1, celula(0), lugares[1] < 0 ? u"1"_s : celula(1), celula(2)});
  }
  return coladas;
}

struct Achado {
  forms::GridRow artigo;  ///< as a tab's grid has it
  QString tipo;           ///< its class; empty where there is no such article
};

/// Class text of an article, empty for none of the tabs.
QString classeDoArtigo(const data::Recordset& rs) {
  if (maiusculas(rs.text(u"PROD_MATE_PRIM")) == u"P") return kTipoProduto.toString();
  const QString tipo = maiusculas(apara(rs.text(u"tipo_mate_prima")));
  return tipo == kTipoProduto || ordemDoTipo(tipo) == u"8" ? QString() : tipo;
}

}  // namespace

void frmMontarProduto::colaLinhas(const QStringList& coladas) {
  const auto acha = [](QString codigo) -> Asked<Achado> {
    const data::Recordset rs =
        co_await pedeConsulta(u"SELECT * FROM prod WHERE data_desa is null and codi_prod = '"_s +
                                  codigo.replace(u'\'', u"''"_s) + u"'"_s,
                              data::Rows::First);
    Achado achado;
    if (rs.eof()) co_return achado;
    achado.tipo = classeDoArtigo(rs);
    achado.artigo = co_await linhaDoArtigo(rs);
    co_return achado;
  };
  const forms::WaitPointer espera;
  const std::vector<Colada> linhas = leColadas(coladas);
  std::vector<Asked<Achado>> pedidos;
  pedidos.reserve(linhas.size());
  for (const Colada& linha : linhas) pedidos.push_back(acha(linha.codigo));
  std::optional<double> fator;
  if (!forms::form<frmPropCmrcTL>().opPV->isChecked()) fator = fatorShowRoom();

  QStringList recusadas;
  for (std::size_t i = 0; i < linhas.size(); ++i) {
    const Colada& linha = linhas[i];
    const auto [artigo, tipo] = waitFor(pedidos[i]);
    const QString recusa = colaLinha(artigo, tipo, linha.quantidade, linha.observacao, fator);
    if (!recusa.isEmpty()) recusadas << u"Linha %1, %2: %3"_s.arg(linha.numero).arg(linha.codigo, recusa);
  }
  arrumaLinhas();
  if (recusadas.isEmpty()) return;
  constexpr qsizetype kMaximo = 15;
  const qsizetype resto = recusadas.size() - kMaximo;
  if (resto > 0) recusadas = recusadas.first(kMaximo) << u"… e mais %1"_s.arg(resto);
  avisa(u"Não entraram na montagem:\r"_s + recusadas.join(u'\r'), windowTitle());
}

QString frmMontarProduto::colaLinha(const forms::GridRow& artigo, const QString& tipo,
                                    const QString& quantidade, const QString& observacao,
                                    std::optional<double> fator) {
  if (tipo.isEmpty()) return u"não encontrado"_s;
  QString recusa = recusaDaQuantidade(quantidade);
  if (recusa.isEmpty()) recusa = recusaDoArtigo(tipo, artigo.text(Codigo));
  if (!recusa.isEmpty()) return recusa.replace(u'\r', u' ');
  const bool produto = tipo == kTipoProduto;
  const QString cabe = corta(observacao, maximoDaObservacao());
  // That of the product is the item's.
  if (produto && txtObservacoes->text().isEmpty()) txtObservacoes->setText(cabe);
  incluiArtigo({{Column::Id, artigo.text(Id)},
                {Column::Codigo, artigo.text(Codigo)},
                {Column::Descricao, artigo.text(Descricao)},
                {Column::Quantidade, quantidade},
                {Column::Unidade, artigo.text(Unidade)},
                {Column::QtUnidade, artigo.text(QtUnidade)},
                {Column::ValorUnitario, artigo.text(Valor)},
                {Column::Tipo, tipo},
                {Column::Observacao, produto ? QString() : cabe},
                {Column::Ordem, ordemDoTipo(tipo)}},
               fator);
  return {};
}
