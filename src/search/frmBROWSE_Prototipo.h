#pragma once

#include "search/photo_search.h"
#include "ui_frmBROWSE_Prototipo.h"

/// Finds a prototype and hands it to the screen named by TelaChamadora.
class frmBROWSE_Prototipo : public pesquisa::PesquisaComFotos, public Ui::frmBROWSE_Prototipo {
  Q_OBJECT

 public:
  /// The remembered search runs at the load, with what the caller has ticked.
  static constexpr bool kLoadsWhenShown = true;

  enum Coluna { Id, Descricao, Produto, DtDesativa };

  frmBROWSE_Prototipo();

  void preparaGradePrototipo();
  using PesquisaComFotos::MontaDetalheHTML;

 protected:
  void Form_Load() override;
  void cmdPesquisa_Click() override;
  void entregaEscolha() override;

 private:
  [[nodiscard]] QString montaConsulta() const;
  static data::Asked<forms::GridRow> linhaDoPrototipo(data::Recordset rs);
};
