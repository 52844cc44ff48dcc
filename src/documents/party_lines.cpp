#include "documents/party_lines.h"

#include "documents/html_text.h"
#include "shared/lookups.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;

namespace {

const QString kComentario = u"Dados do Cliente"_s;

html::Quadro quadroDe(const QStringList& linhas) {
  return {.comentario = kComentario, .titulo = kComentario, .linhas = linhas, .primeiraNegrita = true};
}

}  // namespace

QString Parte::localidade() const { return html::juntos({cidade, uf, cep}); }

Parte leParte(const QString& idclie) {
  const QString texto = waitFor(EnderecoCliente(idclie));
  Parte parte;
  int campo = 0;
  for (QString* destino : {&parte.nome, &parte.endereco, &parte.cidade, &parte.uf, &parte.cep,
                           &parte.inscricao, &parte.documento, &parte.bairro})
    *destino = PegaCampo(texto, ++campo);
  return parte;
}

QStringList linhasDaParte(const Parte& parte, const QString& fone, const QString& email) {
  return {
      u"Nome: "_s + parte.nome, u"Fone: "_s + fone, u"e-mail: "_s + email,
      u"Endereço: "_s + html::juntos({parte.endereco + u" - Bairro: "_s + parte.bairro, parte.localidade()}),
      u"CNPJ/CPF: "_s + parte.documento + u" - I.E./RG: "_s + parte.inscricao};
}

QString quadroCliente(const QStringList& linhas) { return html::quadro(quadroDe(linhas)); }

QString quadroClienteEstilos(const QStringList& linhas) {
  return html::quadroEstilos(quadroDe(linhas), u"titulo3"_s, u"dados1b"_s);
}
