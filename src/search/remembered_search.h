#pragma once

#include <QString>

// What the product and the prototype search keep from one opening to the next.
namespace pesquisa {

/// The last search that was followed by a click on a row, whichever of the two screens it was on.
struct Lembranca {
  QString tela;         ///< the screen that it was on
  QString BrowseOpcao;  ///< name of the option of the field searched; empty: nothing to remember
  QString BrowseTexto;
  QString BrowseAtivos;  ///< "Sim" or "Não"
  QString BrowseCombo;   ///< collection
  QString BrowseTipo;    ///< name of the option of the class
  int LinhaBrowse = 1;   ///< first visible row when a row was chosen
};

struct Lembrancas {
  Lembranca pesquisa;
  QString TipoBrowseProduto;  ///< "KIT" where a caller wants a component
  QString ArqImagem;          ///< file of the last photo found
  QString ArqImagem2;         ///< file of the photo that is shown
};

[[nodiscard]] Lembrancas& lembrancas();

/// Forgets all; for tests.
void reiniciaLembrancas();

}  // namespace pesquisa
