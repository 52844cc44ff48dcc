#include "shared/text.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QUrl>

#include "platform/forms/combo.h"
#include "platform/forms/masked_box.h"
#include "platform/values/dates.h"
#include "run/context.h"
#include "support/script.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Text, FitsToAWidth) {
  EXPECT_EQ(AjustaTexto(u"abc"_s, 5, Alinhamento::Esquerda), u"abc  ");
  EXPECT_EQ(AjustaTexto(u"abc"_s, 5, Alinhamento::Direita), u"  abc");
  EXPECT_EQ(AjustaTexto(u"abcdef"_s, 4, Alinhamento::Esquerda), u"abcd");
  EXPECT_EQ(AjustaTexto(QString(), 3, Alinhamento::Esquerda), u"   ");
}

TEST(Text, Replacements) {
  EXPECT_EQ(VirgulaParaPonto(u"1.234,50"_s), u"1.234.50") << "grouping isn't understood";
  EXPECT_EQ(PontoVirgulaParaVirgula(u"a;b;;c"_s), u"a,b,,c");
  EXPECT_EQ(SubstituiTexto(u"aaa"_s, u"aa"_s, u"b"_s), u"ba");
  EXPECT_EQ(SubstituiTexto(u"abc"_s, u""_s, u"x"_s), u"abc");
  EXPECT_EQ(Maiusculas(u"conteúdo straße ñ"_s), u"CONTEÚDO STRAßE Ñ");
  EXPECT_EQ(Apara(u"  a b\t "_s), u"a b\t");
  EXPECT_EQ(AparaDireita(u" a "_s), u" a");
}

TEST(Text, Keys) {
  for (const char16_t key : std::u16string_view(u",0123456789%\b\r\x1b"))
    EXPECT_EQ(FiltraTeclaNumerica(key), key);
  for (const char16_t key : std::u16string_view(u".-+ aé$")) EXPECT_EQ(FiltraTeclaNumerica(key), u'\0');
  EXPECT_EQ(FiltraTeclaDecimal(u'.'), u',');
}

TEST(Text, NumbersAndMoney) {
  const std::pair<QString, double> cases[] = {
      {u"12,5"_s, 12.5}, {u"1.234,50"_s, 1.234}, {u"abc"_s, 0}, {u""_s, 0}, {u" 3%"_s, 3}};
  for (const auto& [text, value] : cases) EXPECT_EQ(LeNumero(text), value) << text.toStdString();
  EXPECT_EQ(Moeda(1.005), u"1,01");
  EXPECT_EQ(Moeda(u"12.5"_s), u"125,00") << "the regional conversion takes the point as grouping";
  EXPECT_EQ(Moeda(u""_s), u"");
  EXPECT_EQ(Moeda(u"a combinar"_s), u"a combinar");
  const QString masks[] = {u"###0"_s, u"###0.0"_s, u"###0.00"_s, u"###0.000"_s, u"###0.0000"_s};
  for (int decimals = 0; decimals <= 4; ++decimals)
    EXPECT_EQ(MascaraDecimais(QString::number(decimals)), masks[decimals]);
  EXPECT_EQ(MascaraDecimais(u""_s), u"###0");
}

TEST(Text, DatesAreCompleted) {
  values::setClock([] { return values::toDate(u"20/02/2024 08:30"); });
  const std::pair<QString, QString> cases[] = {{u"__/__/____"_s, u"__/__/____"_s},
                                               {u"__/__/____ __:__"_s, u"__/__/____ __:__"_s},
                                               {u"15/__/____"_s, u"06/03/2024"_s},
                                               {u"15/03/____"_s, u"06/03/2024"_s},
                                               {u"1_/__/____"_s, u"21/02/2024"_s},
                                               {u"__/03/____"_s, u"20/02/2024"_s},
                                               {u"15/__/____ __:__"_s, u"06/03/2024 08:30"_s},
                                               {u"31/02/2024"_s, u"31/02/2024"_s},
                                               {u"15/03/20__"_s, u"15/03/20__"_s},
                                               {u""_s, u""_s}};
  for (const auto& [typed, completed] : cases) EXPECT_EQ(ValidaDataMascara(typed), completed);
  values::setClock({});
}

TEST(Text, AccentsGoOnlyWhereTheConfigurationSaysSo) {
  reiniciaContexto();
  EXPECT_EQ(TiraAcentos(u"ADEREÇO não"_s), u"ADEREÇO não");
  contexto().TiraAcento = true;
  EXPECT_EQ(TiraAcentos(u"ADEREÇO não Üñ €"_s), u"ADERECO nao Uñ €");
  reiniciaContexto();
}

class Mailto : public QObject {
  Q_OBJECT
 public Q_SLOTS:
  void open(const QUrl& url) { opened << url.toString(); }

 public:
  QStringList opened;
};

TEST(Text, MailProgram) {
  Mailto handler;
  QDesktopServices::setUrlHandler(u"mailto"_s, &handler, "open");
  AbreMailto(u"  "_s);
  AbreMailto(u"Vendas@Aurora.example"_s);
  QDesktopServices::unsetUrlHandler(u"mailto"_s);
  EXPECT_EQ(handler.opened, QStringList{u"mailto:vendas@aurora.example"_s});
}

TEST(Text, SelectsTheActiveControl) {
  QWidget window;
  auto* combo = new forms::Combo(&window);
  auto* block = new QPlainTextEdit(&window);
  combo->setText(u"abc"_s);
  block->setPlainText(u"linha"_s);
  window.show();
  window.activateWindow();
  support::focus(combo);
  combo->lineEdit()->deselect();
  SelecionaTextoAtivo();
  EXPECT_EQ(combo->lineEdit()->selectedText(), u"abc");
  support::focus(block);
  SelecionaTextoAtivo();
  EXPECT_EQ(block->textCursor().selectedText(), u"linha");
}

}  // namespace

#include "text_test.moc"
