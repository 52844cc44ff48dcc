#include "search/photo.h"

#include <QPainter>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"
#include "run/context.h"
#include "text/trim.h"

namespace pesquisa {

Foto::Foto(QWidget* parent) : QLabel(parent) {
  setFrameShape(QFrame::StyledPanel);
  setMinimumSize(160, 160);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Foto::setFoto(const QPixmap& foto) {
  foto_ = foto;
  update();
}

void Foto::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (foto_.isNull()) return;
  QRect lugar({}, foto_.size().scaled(contentsRect().size(), Qt::KeepAspectRatio).boundedTo(foto_.size()));
  lugar.moveCenter(contentsRect().center());
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::SmoothPixmapTransform);
  pintor.drawPixmap(lugar, foto_);
}

QPixmap carregaFigura(const QString& caminho) {
  QPixmap figura;
  if (caminho.isEmpty()) return figura;
  if (!files::exists(caminho)) values::raise(values::kFileNotFound, caminho);
  if (!figura.loadFromData(files::readAll(caminho))) values::raise(values::kInvalidPicture, caminho);
  return figura;
}

FotoDeArquivo fotoDoCodigo(const QString& codigo, const QString& vista) {
  const Contexto& c = contexto();
  const QString nome = apara(codigo) + vista;
  for (const QString& caminho :
       {c.PathImagens + nome + c.ExtImagens, c.PathImagens2 + nome + c.ExtImagens2}) {
    QPixmap figura;
    if (files::exists(caminho) && figura.loadFromData(files::readAll(caminho))) return {caminho, figura};
  }
  return {c.ArqSemImagem, carregaFigura(c.ArqSemImagem)};
}

}  // namespace pesquisa
