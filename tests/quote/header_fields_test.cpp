#include "quote/header_fields.h"
#include "draft/screen_fields.h"
#include "platform/values/dates.h"
#include "quote_case.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using cabecalho::Campo;
using cabecalho::Tipo;

namespace {

/// What holds for each field of the header, whichever there are.
class HeaderFields : public QuoteCase {
 protected:
  using Texts = QMap<QString, QString>;

  /// Fields by name as the screen shows them; those that a save stores in its upper case.
  [[nodiscard]] Texts shown() const {
    Texts texts;
    for (const Campo& field : cabecalho::campos()) {
      const QString text = cabecalho::texto(field, *screen);
      texts[field.controle.toString()] = field.busca.nome == nullptr ? maiusculas(text) : text;
    }
    return texts;
  }

  /// Types something else into each field than any other holds; a list's entry, or none where it has no
  /// second one.
  void fill(int round) {
    for (const Campo& field : cabecalho::campos())
      if (field.digitado()) cabecalho::poe(field, *screen, sample(field, round));
  }

  void save(const QString& id) {
    script.box(u"Registro Gravado com sucesso!\nOrçamento nr."_s + id);
    support::click(screen->cmdSALVAR);
  }

 private:
  QString sample(const Campo& field, int round) {
    ++given_;
    if (field.tipo == Tipo::Data) return values::formatDate(values::now().addDays(given_), u"dd/mm/yyyy");
    if (field.tipo == Tipo::Pessoas) return QString::number(given_);
    if (field.tipo == Tipo::Opcao) return round == 1 ? u"S"_s : u"E"_s;
    if (field.busca.id == nullptr) return u"texto %1"_s.arg(given_);
    auto* list = screen->findChild<forms::Combo*>(field.controle.toString());
    Q_EMIT list->dropDown();
    return list->itemText(round - 1);
  }

  int given_ = 0;
};

TEST_F(HeaderFields, AllSurviveASaveAnAlterationAndADraft) {
  start();
  support::click(screen->cmdINCLUIR);
  fill(1);
  addItem(u"101;PROD;CX-100;Caixa;19,25;0,00;19,25;3;57,75;;UN;"_s);
  Texts typed = shown();
  typed[u"txtRowId"_s] = typed[u"txtCodigo"_s] = u"1"_s;
  typed[u"lblNumePedido"_s] = u"000000"_s;
  typed[u"txtObservacao"_s].clear();
  typed[u"lblDesconto"_s] = typed[u"lblPercDesconto"_s] = u"0"_s;
  save(u"1"_s);
  for (const QStringView column : cabecalho::ordemDaAlteracao())
    EXPECT_NE(ask(u"SELECT "_s + column.toString() + u" FROM prop_cmrc"_s), QString())
        << column.toString().toStdString();
  load(1);
  EXPECT_EQ(shown(), typed);

  support::click(screen->cmdALTERAR);
  fill(2);
  const Texts altered = shown();
  const QString draft = rascunho::retrato();
  save(u"1"_s);
  load(1);
  Texts stored = altered;
  stored[u"txtObservacao"_s].clear();
  EXPECT_EQ(shown(), stored);
  for (const Campo& field : cabecalho::campos())
    EXPECT_TRUE(!field.digitado() || altered[field.controle.toString()] != typed[field.controle.toString()])
        << field.controle.toString().toStdString();

  screen->LimpaTela();
  rascunho::repoe(draft, forms::formName<frmPropCmrcTL>());
  EXPECT_EQ(shown(), altered);
}

}  // namespace
