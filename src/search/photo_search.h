#pragma once

#include <QRadioButton>
#include <array>
#include <functional>

#include "platform/data/asked.h"
#include "platform/data/recordset.h"
#include "platform/forms/form.h"
#include "search/remembered_search.h"

class QCheckBox;
class QLabel;
class QTabWidget;
namespace web {
class WebPane;
}

namespace pesquisa {

class FolhasDeFotos;
struct Pagina;
class Foto;

/// What the product search and the prototype search have in common: results as a grid with the photo of the
/// current row or as a page of pictures, and a search that comes back at the next opening.
class PesquisaComFotos : public forms::Form {
  Q_OBJECT

 protected:
  /// Its controls, by the names that both screens use.
  struct Controles {
    forms::FlexGrid* Flex;
    QTabWidget* SSTab1;
    web::WebPane* WebBrowser1;
    FolhasDeFotos* folhas;
    Foto* Image1;
    std::array<QPushButton*, 4> cmdImagem1;
    QLineEdit* txtCOD;
    QCheckBox* chkVisualiza;
    forms::Combo* cboCole;  ///< only one of the two has it
    QLabel* lblContagem;
  };
  /// What sets the one apart from the other.
  struct Ficha {
    int colunaChave;        ///< names the photo; the column after it is the description
    QString arquivoPagina;  ///< page of pictures, in PathDocs
    QString um;             ///< "produto encontrado"
    QString varios;
  };
  using Opcoes = QList<QRadioButton*>;
  enum Aba { Grade, Imagens };

  explicit PesquisaComFotos(const Ficha& ficha);
  /// After setupUi: connects what both do alike. The first options name the field, the second the class.
  void liga(const Controles& controles, const Opcoes& campos, const Opcoes& tipos = {});

  virtual void cmdPesquisa_Click() = 0;
  /// Double click on a data row, before the screen unloads.
  virtual void entregaEscolha() = 0;

  /// Sets the remembered search again, if there is one, and runs it where it was this screen's.
  void retomaPesquisa();
  /// Runs a statement and adds a row for each record. Nothing found is announced, and the focus goes to
  /// `foco`.
  using Linha = std::function<data::Asked<forms::GridRow>(const data::Recordset&)>;
  void listaResultado(const QString& sql, const Linha& linha, QWidget* foco = nullptr);
  /// The photo of the current row; none where there is none.
  void acompanhaLinha();
  /// The trimmed key of the current row.
  [[nodiscard]] QString chave() const;
  /// The page of pictures of the rows in the grid.
  [[nodiscard]] QString MontaDetalheHTML() const;
  [[nodiscard]] Pagina montaPagina() const;

 private:
  void lembraPesquisa();
  void mostraFoto(std::size_t vista);
  void abrePagina();
  void Flex_Click();
  void Flex_DblClick();
  void Image1_DblClick();  // viewing_photo.cpp

  Ficha ficha_;
  Controles c_{};
  Opcoes campos_, tipos_;
};

}  // namespace pesquisa
