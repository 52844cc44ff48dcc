#include "platform/files/paths.h"
#include "search/frmImagem.h"
#include "search/photo.h"
#include "search/photo_search.h"

namespace pesquisa {

void PesquisaComFotos::Image1_DblClick() {
  const QString& arquivo = lembrancas().ArqImagem2;
  auto& imagem = forms::form<frmImagem>();
  if (files::exists(arquivo)) imagem.setPicNormal(carregaFigura(arquivo));
  imagem.showModal();
}

}  // namespace pesquisa
