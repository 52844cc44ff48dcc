#pragma once

#include "platform/forms/form.h"
#include "ui_frmEmailOS.h"

/// Sends a document by e-mail, as the body of the message. Its caller fills txtTitulo and txtCC, then shows
/// it modally; it unloads once the message has gone.
class frmEmailOS : public forms::Form, public Ui::frmEmailOS {
  Q_OBJECT

 public:
  frmEmailOS();

  /// A file that goes with the message, unless the user takes it out again; none for an empty path.
  void poeAnexo(const QString& caminho);

 protected:
  void Form_Load() override;

 private:
  void txtPara_LostFocus();
  void txtAnexo_LostFocus();
  void cmdAnexo_Click();
  void cmdEnviarEmail_Click();

  bool podeEnviar();
  bool envia();
  void enviaMensagem();
  void fitToText() override;
  void mostraConteudo();
};
