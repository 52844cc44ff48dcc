#include "search/frmImagem.h"

#include "run/context.h"
#include "run/program_title.h"
#include "search/photo.h"
#include "search/remembered_search.h"
#include "shared/theme.h"

using namespace Qt::StringLiterals;

frmImagem::frmImagem() {
  setupUi(this);
  on(Picture1, forms::Event::Click, &frmImagem::Picture1_Click);
}

void frmImagem::Form_Load() {
  CentralizaForm(*this);
  const Contexto& c = contexto();
  setWindowTitle(kTitulo + u" - Visualização de Produtos ("_s + c.ambienteVazio + u"/"_s +
                 c.NomeUsuarioAtual + u")"_s);
  AplicaCoresForm(*this);
}

void frmImagem::setPicNormal(const QPixmap& figura) {
  Picture1->setPixmap(figura);
  Picture1->resize(figura.size());
  const int folga = 2 * area->frameWidth();
  resize((figura.size() + QSize(folga, folga)).expandedTo(minimumSize()));
  CentralizaForm(*this);
}

void frmImagem::Picture1_Click() { setPicNormal(pesquisa::carregaFigura(pesquisa::lembrancas().ArqImagem2)); }
