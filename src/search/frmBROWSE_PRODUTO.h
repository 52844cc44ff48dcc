#pragma once

#include "search/photo_search.h"
#include "ui_frmBROWSE_PRODUTO.h"

/// Finds a product and hands it to the screen named by TelaChamadora.
class frmBROWSE_PRODUTO : public pesquisa::PesquisaComFotos, public Ui::frmBROWSE_PRODUTO {
  Q_OBJECT

 public:
  enum Coluna { Id, Codigo, Descricao, Estoque, DtDesativa };

  frmBROWSE_PRODUTO();

  void PreparaGradeProduto();
  using PesquisaComFotos::MontaDetalheHTML;

 protected:
  void Form_Load() override;
  void cmdPesquisa_Click() override;
  void entregaEscolha() override;

 private:
  [[nodiscard]] QString montaConsulta() const;
  [[nodiscard]] QString filtroTexto() const;
  [[nodiscard]] QString filtroClasse() const;
  void cmdLimpar_Click();
};
