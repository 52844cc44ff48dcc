#pragma once

#include <QString>
#include <optional>

// Whether a quote is being made or altered, what its row says of a stored one, and what follows for the
// commands.
namespace situacao {

/// By ModoOrcamento.
[[nodiscard]] bool incluindo();
[[nodiscard]] bool alterando();
/// One of the two.
[[nodiscard]] bool editando();
/// Sets ModoOrcamento and ModoItem, "I" or "A"; the second stays as it is at the end.
void entra(const QString& modoOrcamento, const QString& modoItem);
void encerra();

/// A quote can be both.
struct Situacao {
  bool desativado = false;
  bool fechado = false;
};

/// Commands that a stored quote's situation can forbid.
enum class Comando { Alterar, Desativar, Reativar, Fechar, Reabrir };

/// Why the situation forbids a command, and whether the screen is emptied then.
struct Recusa {
  QString texto;
  bool limpa = true;
};
[[nodiscard]] std::optional<Recusa> recusa(Comando comando, const Situacao& situacao);

}  // namespace situacao
