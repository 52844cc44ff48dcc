#pragma once

#include <QByteArrayList>
#include <QWidget>

class QLabel;
class QToolButton;
namespace web {
class WebPane;
}

namespace pesquisa {

/// A page of pictures: its rows, and what stands before and after them.
struct Pagina {
  QByteArray antes;
  QByteArrayList linhas;
  QByteArray depois;
  /// As it stands in the file.
  [[nodiscard]] QByteArray inteira() const { return antes + linhas.join() + depois; }
};

/// Turns the leaves of a page of pictures that is too long to be shown whole: the line under its pane.
/// Promoted in Designer files (header search/photo_page.h).
class FolhasDeFotos : public QWidget {
  Q_OBJECT

 public:
  explicit FolhasDeFotos(QWidget* parent = nullptr);

  /// Shows a page that stands in a file, some hundred of its rows at a time. A shorter one is shown as it is,
  /// and the line isn't.
  void abre(web::WebPane& painel, const QString& arquivo, const Pagina& pagina);

 private:
  void mostra(qsizetype folha);

  web::WebPane* painel_ = nullptr;
  QString arquivo_;
  Pagina pagina_;
  qsizetype folha_ = 0;
  QLabel* lblFotos_;
  QToolButton *cmdAnteriores_, *cmdProximas_;
};

}  // namespace pesquisa
