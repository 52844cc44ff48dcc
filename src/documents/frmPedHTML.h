#pragma once

#include <array>

#include "documents/document_types.h"
#include "platform/forms/form.h"
#include "ui_frmPedHTML.h"

/// The viewer. When it loads it writes the files of the document that documento() names, both copies of a
/// quote or an order, and shows them; from here the user prints, mails, or makes the Word and PDF files.
class frmPedHTML : public forms::Form, public Ui::frmPedHTML {
  Q_OBJECT

 public:
  frmPedHTML();

  /// A copy: its tab's frame and pane, the option that chooses it.
  struct Via {
    QFrame* frame;
    web::WebPane* painel;
    QRadioButton* opcao;
    QString arquivo = {};  ///< empty where there is none
  };

  /// The pane of the tab that is shown, and the path of what it shows.
  [[nodiscard]] web::WebPane& painelAtual() const;

 protected:
  void Form_Load() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ligaFerramentas();
  /// The program's measures for what is inside; the window is no larger than the display, and scrolls then.
  void dimensiona();
  /// Places the controls by the program's measures; what the inside is larger than them goes to the panes.
  void dispoe();
  void mostraArquivo();  ///< of the visible pane
  void mostraCaminho(const QString& caminho, const QString& rotulo);
  void mostraZoom();

  // viewer_documents.cpp
  void montaVias();

  // viewer_printing.cpp
  void cmdImprimir_Click();

  // viewer_email.cpp
  void cmdEnviarEmail_Click();
  [[nodiscard]] bool escolheCorpo();

  std::array<Via, kVias> vias_;  ///< in the order of the tabs

  // viewer_word.cpp
  void cmdPDF_Click();
  void cmdWord_Click();

  QString pdf_;  ///< of this document, once it is made
  double escala_ = 1.0;
  int topoFrame2_ = 0;  // twips
};
