#pragma once

#include <QList>
#include <QObject>
#include <memory>
#include <optional>

#include "draft/draft_text.h"
#include "platform/files/kept_file.h"

namespace rascunho {

/// A draft that a program which is gone has left.
struct Oferta {
  files::KeptFile::Left arquivo;
  QString frase;  ///< for the user
  bool recuperavel = false;
};

/// Keeps the draft of the quote that is being edited, and knows of those that were left. There is one,
/// guarda(); it does nothing until it is switched on.
class Guarda : public QObject {
  Q_OBJECT

 public:
  /// From here on a quote that is edited has a draft in this folder.
  void liga(const QString& pasta);
  /// The program's normal end: what was asked of the disk is waited for a little.
  void desliga();

  /// Whether there is a draft that a save has to mark.
  [[nodiscard]] bool temRascunho() const { return escrito_; }
  /// About to commit a save: the draft on the disk says so from here on, or stays as it was where the disk
  /// does not take it.
  void marcaGravacao(const Gravacao& gravacao);
  /// The commit is done.
  void gravado();

  /// The latest first, those that can't be recovered last.
  [[nodiscard]] const QList<Oferta>& ofertas() const { return ofertas_; }
  /// Makes the first of them this program's own draft; nullopt when it is gone or another program has it.
  [[nodiscard]] std::optional<Rascunho> toma();
  /// A draft that was taken goes on being one: what of it was read from the database, as it is now.
  void continua(const QString& lido) { lido_ = lido; }
  /// Leaves the one that was taken as it is.
  void devolve();
  /// Leaves the draft of the quote that is being edited, which is given up, to be offered.
  void deixa();
  /// Throws the one that was taken away.
  void apaga();
  /// Throws one that was offered away; false where it is gone or is not what it was then.
  [[nodiscard]] bool apaga(const Oferta& oferta);

 Q_SIGNALS:
  void ofertasMudaram();

 private:
  void nota();
  void comeca();
  void encerra();
  void procura();
  void recebe(const QList<files::KeptFile::Left>& arquivos);
  [[nodiscard]] QByteArray textoDoRascunho(const Gravacao& gravacao) const;

  std::unique_ptr<files::KeptFile> arquivo_;
  QList<Oferta> ofertas_;
  Oferta tomada_;
  bool editava_ = false;
  bool tomado_ = false;   ///< the own file is one that was left
  bool escrito_ = false;  ///< something was given to the disk
  QString ultimo_;        ///< what the screens held then
  QString lido_;
};

[[nodiscard]] Guarda& guarda();

}  // namespace rascunho
