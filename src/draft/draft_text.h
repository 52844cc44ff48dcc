#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace rascunho {

/// What a draft says of a save that has begun: enough to know whether it came to its end. Ids alone do not
/// tell, for after a commit that fails the next save may be given the same ones.
struct Gravacao {
  QString orcamento;  ///< id of the quote; empty where no save has begun
  QString conteudo;   ///< digest of what it is stored as
};

/// A draft: the working copy of a quote that is being edited, and whose it is.
struct Rascunho {
  QString versao;  ///< of the program
  QString usuario, ambiente;
  QString banco;   ///< server and database, as a digest
  QString quando;  ///< "yyyy-MM-ddTHH:mm:ss"
  QString cliente;
  QString itens;  ///< their number
  QString modo, modoItem;
  QString foco;       ///< name of the field that was being typed in
  QString orcamento;  ///< id of the stored quote, where one is being altered
  QString lido;       ///< digest of what it held when it was loaded
  Gravacao gravacao;
  QString retrato;  ///< of the screens
};

/// The version of this program, as drafts name it.
[[nodiscard]] QString versaoDoPrograma();

/// As it is kept: tab-separated lines in UTF-8.
[[nodiscard]] QByteArray texto(const Rascunho& rascunho);

/// The draft that stands in a text; nullopt where there is none. One of another version has its head alone.
[[nodiscard]] std::optional<Rascunho> le(const QByteArray& texto);

}  // namespace rascunho
