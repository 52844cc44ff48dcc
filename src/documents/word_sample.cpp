#include <span>

#include "documents/document_names.h"
#include "documents/document_values.h"
#include "documents/word.h"
#include "platform/office/word_processor.h"
#include "platform/values/numbers.h"
#include "shared/lookups.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;
using office::WordProcessor;

namespace {

constexpr char16_t kLogo[] = u"C:\\zarim\\imagens\\logo_cliente.jpg";

/// An invented person: the layout trial reads nothing of the quote.
constexpr const char16_t* kCustomer[] = {u"Nome: Maria Aparecida da Silva", u"Fone: (11) 3000-1234",
                                         u"Email: maria.aparecida@exemplo.com.br", u"Contato: Ana Paula",
                                         u"Email: ana.paula@exemplo.com.br"};

constexpr const char16_t* kGeneral[] = {
    u"Data/Hora do Evento: 05/11/2004 13:51 - Número de Pessoas: 100 - Validade do Orçamento: 06/10/2004",
    u"Resp.Atendimento: Carolina", u"Tipo Evento: CASAMENTO", u"Tipo Serviço: PRESENTES PERSONALIZADOS",
    u"Observações: TESTE"};

enum CompanyField { Nome = 1, Cnpj, Ie, Endereco, Cidade, Uf, Cep, Fone1, Fone2, Email, Site };

void letterhead(WordProcessor& word) {
  const QString company = DadosEmpresaTexto();
  const auto field = [&](CompanyField n) { return PegaCampo(company, n); };
  word.addTable(1, 2, false);
  word.addPicture(QString::fromUtf16(kLogo));
  word.moveRight();
  word.setFont(u"Arial"_s, 10, true);
  word.typeText(field(Nome));
  word.setFont(u"Arial"_s, 8);
  for (const QString& line :
       {u"CNPJ: "_s + field(Cnpj) + u" - I.E.: "_s + field(Ie),
        field(Endereco) + u" - "_s + field(Cidade) + u" - "_s + field(Uf) + u" - "_s + field(Cep),
        u"Tel.: "_s + field(Fone1) + u" - "_s + field(Fone2), u"e-mail: "_s + field(Email),
        u"Site: "_s + field(Site)}) {
    word.typeParagraph();
    word.typeText(line);
  }
  word.moveAfterTable();
}

void heading(WordProcessor& word, const QString& text) {
  word.typeParagraph();
  word.setAlignment(Qt::AlignLeft);
  word.setFont(u"Arial"_s, 10, true);
  word.typeText(text);
}

void lines(WordProcessor& word, std::span<const char16_t* const> texts) {
  word.setFont(u"Arial"_s, 8);
  for (const char16_t* text : texts) {
    word.typeParagraph();
    word.typeText(QString::fromUtf16(text));
  }
}

}  // namespace

void DocumentoWordAmostra() {
  const qint32 id = documento().IdDocumento;
  const QString title = u"Orçamento de Venda - "_s + values::format(id, u"000000") + u" - "_s +
                        DiaDaData(DataOrcamento(QString::number(id)));
  WordProcessor word;
  word.addDocument(title);
  letterhead(word);
  word.setFont(u"Arial"_s, 11, true);
  word.setAlignment(Qt::AlignHCenter);
  word.typeText(title);
  heading(word, u"Dados do Cliente"_s);
  lines(word, kCustomer);
  heading(word, u"Dados Gerais"_s);
  lines(word, kGeneral);
  word.setVisible(true);
  word.saveAs(QString::fromUtf16(kArquivoAmostra));
  word.closeDocument();
  word.quit();
}
