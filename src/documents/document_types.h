#pragma once

#include <QtGlobal>

class QString;

/// What sets the types of documents apart: how one is written, the names of its copies, its mail's subject.
struct TipoDeDocumento {
  const char16_t* tipo;  ///< as TipoDocumento names it
  void (*monta)(qint32 id, const QString& caminho);
  const char16_t* via1;  ///< beginning of the file's name
  const char16_t* via2;  ///< nullptr: one copy only
  const char16_t* assunto;
};

/// That of the document which documento() names; nullptr for an unknown type.
[[nodiscard]] const TipoDeDocumento* tipoDoDocumento();
