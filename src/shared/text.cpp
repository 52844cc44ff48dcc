#include "shared/text.h"

#include <QDesktopServices>
#include <QUrl>
#include <algorithm>
#include <limits>

#include "platform/forms/form.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "run/context.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

QString AjustaTexto(const QString& texto, int largura, Alinhamento alinhamento) {
  if (alinhamento == Alinhamento::Esquerda) return corta(texto, largura).leftJustified(largura);
  return texto.right(largura).rightJustified(largura);
}

QString VirgulaParaPonto(const QString& texto) { return SubstituiTexto(texto, u","_s, u"."_s); }

QString PontoVirgulaParaVirgula(const QString& texto) { return SubstituiTexto(texto, u";"_s, u","_s); }

QString SubstituiTexto(const QString& texto, const QString& velho, const QString& novo) {
  if (velho.isEmpty()) return texto;
  QString trocado = texto;
  return trocado.replace(velho, novo);
}

char16_t FiltraTeclaNumerica(char16_t tecla) {
  constexpr char16_t kPrimeiraVisivel = u' ';
  if (tecla < kPrimeiraVisivel) return tecla;
  return QStringView(u",0123456789%").contains(QChar(tecla)) ? tecla : u'\0';
}

char16_t filtraTeclaDecimal(char16_t tecla) { return FiltraTeclaNumerica(tecla == u'.' ? u',' : tecla); }

QString MascaraDecimais(const QString& casas) {
  const int decimais = static_cast<int>(std::clamp(leNumero(casas), 0.0, 4.0));
  return decimais == 0 ? u"###0"_s : u"###0."_s + QString(decimais, u'0');
}

void RestauraMascara(forms::MaskedBox* caixa) { caixa->setBoxText({}); }

QString anoInteiro(const QString& ano) {
  constexpr int kPrimeiroDoSeculoPassado = 30;
  if (ano.size() != 2) return ano;
  return (ano.toInt() < kPrimeiroDoSeculoPassado ? u"20"_s : u"19"_s) + ano;
}

QString ValidaDataMascara(const QString& texto) {
  const QStringView dia = QStringView(texto).left(10);
  const bool comHora = texto.size() > 10;
  if (dia == u"__/__/____") return comHora ? u"__/__/____ __:__"_s : u"__/__/____"_s;
  const QStringView ano = dia.mid(6);
  if (ano.endsWith(u"__") && ano[0].isDigit() && ano[1].isDigit())
    return dia.first(6).toString() + anoInteiro(ano.first(2).toString()) + texto.mid(10);
  if (ano != u"____") return texto;
  // A day without its year counts the days from now.
  int dias = 0;
  for (const QChar c : dia.left(5)) {
    if (c < u'0' || c > u'9') break;
    dias = dias * 10 + (c.unicode() - u'0');
  }
  return values::formatDate(values::now().addDays(dias), comHora ? u"dd/mm/yyyy hh:mm" : u"dd/mm/yyyy");
}

QString TiraAcentos(const QString& texto) {
  static constexpr QStringView kCom = u"ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÒÓÔÕÖÙÚÛÜàáâãäåçèéêëìíîïòóôõöùúûü";
  static constexpr QStringView kSem = u"AAAAAACEEEEIIIIOOOOOUUUUaaaaaaceeeeiiiiooooouuuu";
  static_assert(kCom.size() == kSem.size());
  if (!contexto().TiraAcento) return texto;
  QString limpo = texto;
  for (QChar& c : limpo) {
    if (c.unicode() < 0x80) continue;
    if (const qsizetype lugar = kCom.indexOf(c); lugar >= 0) c = kSem[lugar];
  }
  return limpo;
}

void SelecionaTextoAtivo() {
  const QList<forms::Form*> telas = forms::registry::shown();
  QWidget* campo = telas.isEmpty() ? nullptr : telas.last()->focusWidget();
  if (campo != nullptr) forms::selectText(campo);
}

void AbreMailto(const QString& endereco) {
  if (apara(endereco).isEmpty()) return;
  QDesktopServices::openUrl(QUrl(u"mailto:"_s + endereco.toLower()));
}

double leNumero(const QString& texto) { return values::leadingNumber(VirgulaParaPonto(texto)); }

bool podeSerId(const QString& digitos) { return leNumero(digitos) <= std::numeric_limits<qint32>::max(); }

double leValor(const QString& texto) {
  return values::isNumeric(texto) ? values::toNumber(texto) : leNumero(texto);
}

QString formataLido(const QString& texto, QStringView mascara) {
  return texto.isEmpty() ? texto : values::format(leValor(texto), mascara);
}

QString emMoeda(double valor) { return values::format(valor, kMascaraMoeda); }

QString emMoeda(const QString& texto) { return values::format(texto, kMascaraMoeda); }

QString numeroDocumento(qint32 id) { return numeroDocumento(QString::number(id)); }
QString numeroDocumento(const QString& id) { return values::format(id, u"000000"); }

QString maiusculas(const QString& texto) {
  QString alto = texto;
  for (QChar& c : alto)
    if (c >= u'a') c = c.toUpper();
  return alto;
}
