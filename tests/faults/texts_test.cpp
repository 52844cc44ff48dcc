#include "fault_case.h"
#include "run/context.h"
#include "shared/text.h"
#include "support/printing.h"
#include "support/script.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

/// A field of the quote that takes any text, and the column of prop_cmrc where it goes; null for an
/// honoree's name and the first item's remark.
struct Field {
  const char* control;
  const char* column;
};
constexpr Field kFields[] = {{"txtDesc", "prop_cmrc_desc"},
                             {"cboCliente", "nome_clie"},
                             {"txtFoneExtra", "fone_clie"},
                             {"txtEmailExtra", "emai_clie"},
                             {"cboClienteContato", "nome_clie_cont"},
                             {"txtFoneExtraContato", "fone_clie_cont"},
                             {"txtEmailExtraContato", "emai_clie_cont"},
                             {"txtObserva", "obse_prop_cmrc"},
                             {"txtCondPagto", "txt_cond_pgto"},
                             {"txtNomeHomg", nullptr},
                             {"Flex", nullptr}};

const QStringList& texts() {
  static const QStringList all{QString(10'000, u'ç'),
                               u"🎁 festa 👩‍👩‍👧 日本"_s,
                               u"d'água"_s,
                               u"''"_s,
                               u"a\tb\tc\td"_s,
                               u"um\r\ndois\ntrês\rquatro"_s,
                               u"a^b^^c^"_s,
                               u"a|b||c"_s,
                               u"antes"_s + QChar(u'\0') + u"depois"_s,
                               u"x'); DELETE FROM PROP_CMRC; --"_s,
                               u"-- /* ? :a {b} [c] \\ \" % _"_s,
                               QString(3, QChar(0xD83C))};
  return all;
}

class Texts : public faults::FaultCase, public ::testing::WithParamInterface<Field> {};

/// Whatever the text, the quote is saved whole, with the text, or not at all, and the items keep their
/// columns.
TEST_P(Texts, AreSavedOrRefusedWhole) {
  const QString control = QString::fromLatin1(GetParam().control);
  const bool honoree = control == u"txtNomeHomg";
  for (const QString& text : texts()) {
    SCOPED_TRACE(text.left(30).toStdString());
    auto& screen = start();
    const QStringList before = rowsOf(databasePath());
    enterQuote(screen);
    if (control == u"Flex")
      screen.Flex->grid().setText(1, grades::item::Observacao, text);
    else
      forms::setControlText(forms::findControl(u"frmPropCmrcTL"_s, control), text);
    QString kept = maiusculas(apara(forms::controlText(forms::findControl(u"frmPropCmrcTL"_s, control))));
    if (honoree) screen.cmdIncluirHomg->click();
    screen.cmdSALVAR->click();
    if (ended.has_value()) {
      EXPECT_EQ(ended, 1);
      EXPECT_TRUE(text.contains(u'\'') || text.contains(QChar::Null) || !text.isValidUtf16())
          << boxes.join(u' ').toStdString();
      contexto().Conexao.close();
      EXPECT_EQ(rowsOf(databasePath()), before);
      continue;
    }
    EXPECT_EQ(rowsOf(databasePath()).size(), before.size() + 8 + (honoree ? 1 : 0));
    if (GetParam().column != nullptr) {
      const QString stored =
          ask(u"SELECT %1 FROM prop_cmrc WHERE idprop_cmrc=2"_s.arg(QString::fromLatin1(GetParam().column)));
      kept.replace(u"''"_s, u"'"_s);  // nothing is escaped on the way: two quote marks are one
      EXPECT_EQ(stored, kept);
    }
    screen.cmdPesquisar_PropCmrc->click();
    const forms::GridModel& items = screen.Flex->grid();
    ASSERT_EQ(items.rows(), 3);
    for (const int row : {1, 2}) {
      EXPECT_EQ(items.text(row, grades::item::Codigo), u"CX-100"_s);
      EXPECT_EQ(items.text(row, grades::item::Unidade), u"UN"_s);
    }
    EXPECT_EQ(items.text(2, grades::item::Observacao), u"OBS"_s);
    EXPECT_EQ(screen.FlexHomg->grid().rows(), honoree ? 3 : 2);
    EXPECT_FALSE(ended.has_value()) << boxes.join(u' ').toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Fields, Texts, ::testing::ValuesIn(kFields),
                         [](const auto& one) { return std::string(one.param.control); });

}  // namespace
