#include "shared/text.h"

#include <gtest/gtest.h>

#include "platform/values/dates.h"
#include "run/context.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Text, CaseAndBlanks) {
  EXPECT_EQ(maiusculas(u"conteúdo straße ñ"_s), u"CONTEÚDO STRAßE Ñ");
  EXPECT_EQ(apara(u"  a b\t "_s), u"a b\t");
}

TEST(Text, NumbersAndMoney) {
  EXPECT_EQ(leNumero(u"12,5"_s), 12.5);
  EXPECT_EQ(leNumero(u"1.234,50"_s), 1.234);
  EXPECT_EQ(emMoeda(u"12.5"_s), u"125,00") << "the regional conversion takes the point as grouping";
  EXPECT_EQ(emMoeda(u""_s), u"");
  EXPECT_EQ(emMoeda(u"a combinar"_s), u"a combinar");
  EXPECT_EQ(MascaraDecimais(u"9"_s) + MascaraDecimais(u""_s), u"###0.0000###0");
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
                                               {u"15/03/20__"_s, u"15/03/2020"_s},
                                               {u"15/03/3___"_s, u"15/03/3___"_s},
                                               {u"15/03/30__ 10:00"_s, u"15/03/1930 10:00"_s},
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

}  // namespace
