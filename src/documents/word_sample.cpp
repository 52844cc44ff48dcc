#include <span>

#include "documents/document_names.h"
#include "documents/document_values.h"
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

constexpr char16_t kLogo[] = u"C:\\zarim\\imagens\\logo_cliente.jpg";

/// An invented person: the layout trial reads nothing of the quote.
constexpr const char16_t* kCliente[] = {u"Nome: Maria Aparecida da Silva", u"Fone: (11) 3000-1234",
                                        u"Email: maria.aparecida@exemplo.com.br", u"Contato: Ana Paula",
                                        u"Email: ana.paula@exemplo.com.br"};

constexpr const char16_t* kGerais[] = {
    u"Data/Hora do Evento: 05/11/2004 13:51 - Número de Pessoas: 100 - Validade do Orçamento: 06/10/2004",
    u"Resp.Atendimento: Carolina", u"Tipo Evento: CASAMENTO", u"Tipo Serviço: PRESENTES PERSONALIZADOS",
    u"Observações: TESTE"};

enum CampoDaEmpresa { Nome = 1, Cnpj, Ie, Endereco, Cidade, Uf, Cep, Fone1, Fone2, Email, Site };

void timbre(WordProcessor& word) {
  const QString empresa = waitFor(DadosEmpresaTexto());
  const auto campo = [&](CampoDaEmpresa n) { return PegaCampo(empresa, n); };
  word.addTable(1, 2, false);
  word.addPicture(QString::fromUtf16(kLogo));
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

void linhas(WordProcessor& word, std::span<const char16_t* const> textos) {
  word.setFont(u"Arial"_s, 8);
  for (const char16_t* texto : textos) {
    word.typeParagraph();
    word.typeText(QString::fromUtf16(texto));
  }
}

}  // namespace

void gravaAmostraWord() {
  const qint32 id = documento().IdDocumento;
  const QString tituloDoDocumento = u"Orçamento de Venda - "_s + numeroDocumento(id) + u" - "_s +
                                    diaDaData(waitFor(DataOrcamento(QString::number(id))));
  WordProcessor word;
  word.addDocument(tituloDoDocumento);
  timbre(word);
  word.setFont(u"Arial"_s, 11, true);
  word.setAlignment(Qt::AlignHCenter);
  word.typeText(tituloDoDocumento);
  titulo(word, u"Dados do Cliente"_s);
  linhas(word, kCliente);
  titulo(word, u"Dados Gerais"_s);
  linhas(word, kGerais);
  word.setVisible(true);
  word.saveAs(QString::fromUtf16(kArquivoAmostra));
  word.closeDocument();
  word.quit();
}
