#pragma once

#include "platform/forms/form.h"
#include "ui_frmImagem.h"

/// Shows one photo in its real size.
class frmImagem : public forms::Form, public Ui::frmImagem {
  Q_OBJECT

 public:
  frmImagem();

  /// The picture; the screen takes its size, as far as the screen goes.
  void setPicNormal(const QPixmap& figura);
  [[nodiscard]] QPixmap picNormal() const { return Picture1->pixmap(Qt::ReturnByValue); }

 protected:
  void Form_Load() override;

 private:
  void Picture1_Click();
};
