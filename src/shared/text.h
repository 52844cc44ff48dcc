#pragma once

#include <QString>

namespace forms {
class MaskedBox;
}

// Text, number, date and mask helpers of the program.

enum class Alinhamento { Esquerda, Direita };

inline constexpr QStringView kMascaraMoeda = u"###0.00";

/// The text cut or padded with blanks to the width.
[[nodiscard]] QString AjustaTexto(const QString& texto, int largura, Alinhamento alinhamento);
[[nodiscard]] QString VirgulaParaPonto(const QString& texto);
[[nodiscard]] QString PontoVirgulaParaVirgula(const QString& texto);
[[nodiscard]] QString SubstituiTexto(const QString& texto, const QString& velho, const QString& novo);

/// Lets ",0123456789%" and control keys through, 0 for any other.
[[nodiscard]] char16_t FiltraTeclaNumerica(char16_t tecla);
/// The same with "." turned into "," first.
[[nodiscard]] char16_t filtraTeclaDecimal(char16_t tecla);

/// "###0" with as many zeros after the point as there are decimals, 0 to 4; an empty text is 0 decimals.
[[nodiscard]] QString MascaraDecimais(const QString& casas);

void RestauraMascara(forms::MaskedBox* caixa);
/// A year of two digits whole: 00 to 29 are the 2000s. Any other text stays as it is.
[[nodiscard]] QString anoInteiro(const QString& ano);
/// Completes the text of a date box: without a year it counts days from now, a year of two digits is whole.
[[nodiscard]] QString ValidaDataMascara(const QString& texto);

/// Without accents where the configuration wants it so.
[[nodiscard]] QString TiraAcentos(const QString& texto);
/// Selects the text of the field that has the focus in the form on top.
void SelecionaTextoAtivo();
/// Opens the user's mail program for an address that is not empty.
void AbreMailto(const QString& endereco);

/// The numeric reading: commas are points, then the longest numeric prefix, 0 where there is none.
[[nodiscard]] double leNumero(const QString& texto);
/// By the regional conversion, as far as it takes the text; else the numeric reading ("12%" is 12, "" is 0).
[[nodiscard]] double leValor(const QString& texto);
/// leValor in a mask; an empty text stays empty.
[[nodiscard]] QString formataLido(const QString& texto, QStringView mascara);
/// Whether digits are a number that an id can have; no statement is sent for one that is larger.
[[nodiscard]] bool podeSerId(const QString& digitos);
/// Money mask, "###0.00".
[[nodiscard]] QString emMoeda(double valor);
/// The money mask on a text that is a number by the regional conversion; an empty text stays empty, any other
/// text stays as it is.
[[nodiscard]] QString emMoeda(const QString& texto);

/// The number of a quote, an order or a letter in at least six digits, "000123"; an empty text stays empty.
[[nodiscard]] QString numeroDocumento(qint32 id);
[[nodiscard]] QString numeroDocumento(const QString& id);

/// Upper case, one character for one ("ß" stays).
[[nodiscard]] QString maiusculas(const QString& texto);
