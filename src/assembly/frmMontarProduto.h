#pragma once

#include <optional>

#include "assembly/material_classes.h"
#include "platform/data/asked.h"
#include "platform/forms/form.h"
#include "quote/grids.h"
#include "ui_frmMontarProduto.h"

/// The line that a composite has its identity from: that of class "PRODUTO", the first one where there is
/// none (finishing.cpp).
[[nodiscard]] int linhaProduto(const forms::GridModel& materiais);

/// Whether a text is the quantity of a line: a number with a comma that isn't 0; else a box says so
/// (line_editing.cpp).
/// Why a line can't have that quantity; empty where it can.
[[nodiscard]] QString recusaDaQuantidade(const QString& quantidade);
[[nodiscard]] bool quantidadeValida(const QString& quantidade, const QString& titulo);

/// Longest remark of a line: 250 letters, fewer where its column takes fewer (line_editing.cpp).
[[nodiscard]] int maximoDaObservacao();

/// The assembly screen: a composite product of a quote is put together from one finished product and raw
/// materials of six classes. Flex holds the lines of the product, Flex1 to Flex7 what was found on each tab.
class frmMontarProduto : public forms::Form, public Ui::frmMontarProduto {
  Q_OBJECT

 public:
  /// Columns of the grids of articles found, Flex1 to Flex7.
  enum ColunaPesquisa { Id, Codigo, Descricao, Unidade, QtUnidade, Valor };

  frmMontarProduto();

  /// The lines that the screen was opened with, for a cancel; never shown.
  forms::GridModel FlexSombra{QStringLiteral("FlexSombra"), this};

  // Empty grids with their titles (frmMontarProduto.cpp)
  void PreparaGradeMontagem();
  void PreparaGradeSombra();
  static void PreparaGradePesquisa(forms::FlexGrid* grade);

  /// Why the assembly takes no such article, in two lines; empty where it does (including_item.cpp).
  [[nodiscard]] QString recusaDoArtigo(QStringView tipo, QStringView codigo) const;
  /// Makes an article a line: its value times the factor, its total.
  void incluiArtigo(forms::GridRow artigo, std::optional<double> fator);
  /// After lines came in: the order of their classes, and their sum.
  void arrumaLinhas();

  /// Adds the lines up into lblTotalUnitarioProduto (line_editing.cpp).
  void RecalculaTotalProduto();

 protected:
  void Form_Load() override;

 private:
  /// That of a tab; the tabs stand as the classes do.
  [[nodiscard]] forms::FlexGrid* gradeDaAba(int aba) const;
  [[nodiscard]] forms::FlexGrid* gradeAtual() const { return gradeDaAba(SSTab1->currentIndex()); }
  void preparaGradesPesquisa();

  // Finding and choosing articles (material_tabs.cpp)
  void ligaPesquisa();
  void cmdPesquisar_Click();
  void cmdLimpar_Click();
  void PesquisaMaterial(int aba, const QString& texto);
  static data::Asked<forms::GridRow> linhaDoArtigo(data::Recordset rs);
  void escolheMaterial(int aba);
  /// Rows of code, quantity and remark, as a spreadsheet copies them, become lines (pasting_lines.cpp).
  void colaLinhas(const QStringList& coladas);
  /// One of them, of an article and its class; why it can't be a line, empty where it has become one.
  QString colaLinha(const forms::GridRow& artigo, const QString& tipo, const QString& quantidade,
                    const QString& observacao, std::optional<double> fator);
  void cmdPesquisa_Click();

  // Lines (line_editing.cpp)
  void Flex_DblClick();
  void excluiLinha();
  void alteraLinha();

  // Leaving (finishing.cpp)
  void cmdConfirmar_Click();
  void cmdCancelar_Click();
  [[nodiscard]] QString totalDoItem() const;
  [[nodiscard]] QString observacaoDoItem();
  [[nodiscard]] bool voltaOMesmoItem() const;
};
