
#include "documents/document_names.h"
#include "documents/html_text.h"
#include "documents/word.h"
#include "platform/office/word_processor.h"
#include "platform/values/numbers.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;
using office::WordProcessor;

namespace {

const QString kLogo = u"C:\\zarim\\imagens\\logo_cliente.jpg"_s;

/// An invented person: the layout trial reads nothing of the quote.
const QStringList kCliente = {u"Nome: Maria Aparecida da Silva"_s, u"Fone: (11) 3000-1234"_s,
                              u"Email: maria.aparecida@exemplo.com.br"_s, u"Contato: Ana Paula"_s,
                              u"Email: ana.paula@exemplo.com.br"_s};

const QStringList kGerais = {
    u"Data/Hora do Evento: 05/11/2004 13:51 - Número de Pessoas: 100 - Validade do Orçamento: 06/10/2004"_s,
    u"Resp.Atendimento: Carolina"_s, u"Tipo Evento: CASAMENTO"_s, u"Tipo Serviço: PRESENTES PERSONALIZADOS"_s,
    u"Observações: TESTE"_s};

enum CampoDaEmpresa { Nome = 1, Cnpj, Ie, Endereco, Cidade, Uf, Cep, Fone1, Fone2, Email, Site };

void timbre(WordProcessor& word) {
  const QString empresa = waitFor(DadosEmpresaTexto());
  const auto campo = [&](CampoDaEmpresa n) { return PegaCampo(empresa, n); };
  word.addTable(2, false);
  word.addPicture(kLogo);
  word.moveRight();
  word.setFont(u"Arial"_s, 10, true);
  word.typeText(campo(Nome));
  word.setFont(u"Arial"_s, 8);
  for (const QString& linha : {u"CNPJ: "_s + campo(Cnpj) + u" - I.E.: "_s + campo(Ie),
                               html::juntos({campo(Endereco), campo(Cidade), campo(Uf), campo(Cep)}),
                               u"Tel.: "_s + html::juntos({campo(Fone1), campo(Fone2)}),
                               u"e-mail: "_s + campo(Email), u"Site: "_s + campo(Site)}) {
    word.typeParagraph();
    word.typeText(linha);
  }
  word.moveAfterTable();
}

void titulo(WordProcessor& word, const QString& texto) {
  word.typeParagraph();
  word.setAlignment(Qt::AlignLeft);
  word.setFont(u"Arial"_s, 10, true);
  word.typeText(texto);
}

void linhas(WordProcessor& word, const QStringList& textos) {
  word.setFont(u"Arial"_s, 8);
  for (const QString& texto : textos) {
    word.typeParagraph();
    word.typeText(texto);
  }
}

}  // namespace

void gravaAmostraWord(qint32 id) {
  const QString tituloDoDocumento = u"Orçamento de Venda - "_s + numeroDocumento(id) + u" - "_s +
                                    diaDaData(waitFor(DataOrcamento(QString::number(id))));
  WordProcessor word(tituloDoDocumento);
  timbre(word);
  word.setFont(u"Arial"_s, 11, true);
  word.setAlignment(Qt::AlignHCenter);
  word.typeText(tituloDoDocumento);
  titulo(word, u"Dados do Cliente"_s);
  linhas(word, kCliente);
  titulo(word, u"Dados Gerais"_s);
  linhas(word, kGerais);
  word.saveAs(kArquivoAmostra);
}
