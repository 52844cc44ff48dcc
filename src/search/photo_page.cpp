#include "search/photo_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <algorithm>

#include "platform/web/web_pane.h"

using namespace Qt::StringLiterals;

namespace pesquisa {

namespace {

constexpr qsizetype kPorFolha = 200;

QToolButton* botao(QWidget* dono, const QString& nome, const QString& texto, const QString& dica) {
  auto* feito = new QToolButton(dono);
  feito->setObjectName(nome);
  feito->setText(texto);
  feito->setToolTip(dica);
  return feito;
}

}  // namespace

FolhasDeFotos::FolhasDeFotos(QWidget* parent)
    : QWidget(parent),
      lblFotos_(new QLabel(this)),
      cmdAnteriores_(
          botao(this, u"cmdFotosAnteriores"_s, u"◀ Anteriores"_s, u"Figuras anteriores (Alt+←)"_s)),
      cmdProximas_(botao(this, u"cmdProximasFotos"_s, u"Próximas ▶"_s, u"Próximas figuras (Alt+→)"_s)) {
  lblFotos_->setObjectName(u"lblFotos"_s);
  cmdAnteriores_->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
  cmdProximas_->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Right));
  auto* linha = new QHBoxLayout(this);
  linha->setContentsMargins({});
  linha->addWidget(lblFotos_);
  linha->addStretch();
  linha->addWidget(cmdAnteriores_);
  linha->addWidget(cmdProximas_);
  connect(cmdAnteriores_, &QToolButton::clicked, this, [this] { mostra(folha_ - 1); });
  connect(cmdProximas_, &QToolButton::clicked, this, [this] { mostra(folha_ + 1); });
  hide();
}

void FolhasDeFotos::abre(web::WebPane& painel, const QString& arquivo, const Pagina& pagina) {
  painel_ = &painel;
  arquivo_ = arquivo;
  pagina_ = pagina;
  setVisible(pagina.linhas.size() > kPorFolha);
  isHidden() ? painel.navigate(arquivo) : mostra(0);
}

void FolhasDeFotos::mostra(qsizetype folha) {
  const qsizetype total = pagina_.linhas.size();
  const qsizetype primeira = folha * kPorFolha;
  const qsizetype fim = std::min(primeira + kPorFolha, total);
  folha_ = folha;
  lblFotos_->setText(u"Figuras %1 a %2 de %3"_s.arg(primeira + 1).arg(fim).arg(total));
  cmdAnteriores_->setEnabled(folha > 0);
  cmdProximas_->setEnabled(fim < total);
  const Pagina parte{pagina_.antes, pagina_.linhas.sliced(primeira, fim - primeira), pagina_.depois};
  painel_->navigate(arquivo_, {}, parte.inteira());
}

}  // namespace pesquisa
