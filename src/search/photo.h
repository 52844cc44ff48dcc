#pragma once

#include <QLabel>

namespace pesquisa {

/// A picture that fits its place, as large as it goes without being distorted. Promoted in Designer files
/// (header search/photo.h).
class Foto : public QLabel {
  Q_OBJECT

 public:
  explicit Foto(QWidget* parent = nullptr);

  void setFoto(const QPixmap& foto);
  [[nodiscard]] const QPixmap& foto() const { return foto_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap foto_;
};

/// Loads a picture file; an empty path gives an empty picture. Raises 53 where there is no file, 481 where it
/// is no picture.
[[nodiscard]] QPixmap carregaFigura(const QString& caminho);

/// A photo and the file that it is of.
struct FotoDeArquivo {
  QString arquivo;
  QPixmap figura;
};

/// The photo of a code, in the first or the second folder of photos; ArqSemImagem where there is none, or one
/// that is no picture. vista is empty, "_2", "_3" or "_4".
[[nodiscard]] FotoDeArquivo fotoDoCodigo(const QString& codigo, const QString& vista = {});

}  // namespace pesquisa
