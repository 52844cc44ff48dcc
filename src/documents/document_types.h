#pragma once

#include <QString>
#include <array>

/// Copies that a document can have: the customer's, the company's.
inline constexpr std::size_t kVias = 2;

/// What sets the types of documents apart: how one is written, the names of its copies, its mail's subject.
struct TipoDeDocumento {
  QString tipo;  ///< as TipoDocumento names it
  void (*monta)(qint32 id, const QString& caminho);
  std::array<QString, kVias> vias;  ///< beginnings of the files' names; empty: no such copy
  QString nome;                     ///< with which the subject of its mail begins
};

/// By its name; nullptr for an unknown one.
[[nodiscard]] const TipoDeDocumento* tipoDeDocumento(const QString& tipo);

/// What a quote or an order is called where its number follows, "Orçamento"; a closed quote is an order.
/// Empty for an unknown type.
[[nodiscard]] QString nomeDoDocumento(const QString& tipo, qint32 id);

/// Name and number for the foot of its pages, "Orçamento 000123"; empty for a letter to a supplier.
[[nodiscard]] QString peDaFolha(const QString& tipo, qint32 id);
