#pragma once

#include <QList>
#include <QString>
#include <span>
#include <vector>

#include "platform/data/asked.h"
#include "platform/data/recordset.h"

class QWidget;

namespace forms {
class Form;
}

// The fields of a quote's header, each a row of one table: what the screen, a save and a draft do with a
// field follows from its row.
namespace cabecalho {

enum class Tipo {
  Texto,
  Numero,   ///< of the quote: digits; typed while nothing is edited, kept when the screen is cleared
  Pessoas,  ///< number of persons: a number as it was typed
  Data,     ///< shown as "dd/mm/yyyy"
  Opcao,    ///< "S" with the control, "E" with the other one of its pair
  Valor,    ///< money; cleared to "0"
};

/// What a save makes of a field that is empty.
enum class Vazio {
  SoLida,       ///< nothing, of a full one neither: it is only loaded
  Grava,        ///< stored as it is
  GravaOuNulo,  ///< stored as it is in a new quote, null in an altered one
  Nulo,         ///< left out of a new quote, null in an altered one
  Fora,         ///< left out of both
};

/// How a text is known by an id.
struct Busca {
  QStringView coluna;  ///< of the id
  /// The id of a text; of a contact's within the customer's.
  data::Asked<QString> (*id)(const QString& texto, const QString& cliente) = nullptr;
  /// The text of an id; none where the text has a column of its own.
  data::Asked<QString> (*nome)(const QString& id) = nullptr;
  QStringView recusa = {};  ///< of a text that has no id; empty where any text goes
};

struct Campo {
  QStringView controle;
  QStringView coluna = {};  ///< of its text
  Tipo tipo = Tipo::Texto;
  Vazio vazio = Vazio::SoLida;
  int tamanho = 0;  ///< longest text, 0 for what its column takes
  Busca busca = {};
  QStringView nulo = {};   ///< what null loads, where it is not the cleared field
  bool trava = true;       ///< locked while nothing is edited
  QStringView outro = {};  ///< the other control of a pair of options

  /// Whether a user types it into a quote.
  [[nodiscard]] constexpr bool digitado() const { return vazio != Vazio::SoLida; }
};

/// In the order of the screen, which is Enter's.
[[nodiscard]] std::span<const Campo> campos();

/// The columns that an altered quote writes, in its order.
[[nodiscard]] std::span<const QStringView> ordemDaAlteracao();
/// The field that a column is written from.
[[nodiscard]] const Campo& daColuna(QStringView coluna);

/// Its control, both of a pair.
[[nodiscard]] QList<QWidget*> controles(const Campo& campo, const forms::Form& tela);
/// Text of a field on the screen, as its column takes it.
[[nodiscard]] QString texto(const Campo& campo, const forms::Form& tela);
void poe(const Campo& campo, const forms::Form& tela, const QString& texto);
/// Sets its longest text.
void limita(const Campo& campo, const forms::Form& tela);
/// Empties a field; the number and options stay.
void limpa(const Campo& campo, const forms::Form& tela);

/// A field and what the screen shows in it.
struct Lido {
  const Campo* campo;
  data::Asked<QString> texto;
};
/// All fields that have a column, as the current row of PROP_CMRC has them; names of ids are asked together.
[[nodiscard]] std::vector<Lido> pedeTextos(const data::Recordset& rs);

/// What a save writes into a column, asked together with others.
struct Gravado {
  QStringView coluna;
  data::Asked<QString> valor;
  Vazio vazio;
};
/// In the order of a new quote.
[[nodiscard]] std::vector<Gravado> pedeValores(const forms::Form& tela);

/// What a column held when its quote was loaded, and what its field showed then, which may be less.
struct Original {
  QStringView coluna;
  QString texto;
  QString valor;
};
/// Of the columns that an altered quote writes, without those that are null and the dates, of which the day
/// alone counts; for a quote that was just loaded.
[[nodiscard]] std::vector<Original> originais(const data::Recordset& rs, const forms::Form& tela);
/// What a column held whose field shows what it did then; nullptr for any other.
[[nodiscard]] const QString* intocado(std::span<const Original> originais, QStringView coluna,
                                      const forms::Form& tela);

}  // namespace cabecalho
