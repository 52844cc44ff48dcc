#pragma once

#include <curl/curl.h>

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <QStringList>

namespace mail {

/// Listens to what the client and the server say to each other: which step failed, and with what answer. It
/// ends the transfer where it must not go on: once TLS was offered nothing is sent unless the line is
/// encrypted, an answer has an end and comes in time, and a server has little time for its good-bye. Outlives
/// the transfer it listens to.
class Dialogue {
 public:
  /// encrypted: the line is from its start. password: not to be shown, as little as what is sent at the
  /// login. patience: seconds for the answer to a command, and for each piece of the message to go.
  Dialogue(bool encrypted, const QString& password, int patience);

  void listenTo(CURL* handle);

  /// Whether the line is, so far.
  [[nodiscard]] bool encrypted() const { return encrypted_; }

  /// What failed, in Portuguese, as the end of "O e-mail não foi enviado: …".
  [[nodiscard]] QString failure(CURLcode result) const;
  /// Whether the server could not be reached or did not answer in time.
  [[nodiscard]] bool silence(CURLcode result) const;
  /// Server and its last answer, a line each; of a long answer the first lines, never a secret.
  [[nodiscard]] QStringList details(const QString& server) const;

 private:
  void said(const QByteArray& line);
  /// Whether the transfer may go on after this line of an answer.
  [[nodiscard]] bool takes(const QByteArray& line);
  /// Whether it may go on when so many bytes of the message have gone.
  [[nodiscard]] bool goesOn(curl_off_t sent);
  [[nodiscard]] bool refused() const;

  QByteArray command_;  ///< the last one sent, without its arguments; empty while connecting
  QString step_;        ///< what a refusal of it means
  QByteArray answer_;   ///< as much as is shown of it, and more
  int lines_ = 0;       ///< of the answer so far
  QString ended_;       ///< why the transfer was ended from here
  bool encrypted_;
  bool late_ = false;
  QStringList secrets_;
  qint64 patience_;  ///< milliseconds
  curl_off_t sent_ = 0;
  QElapsedTimer moved_;    ///< runs since something was sent; not while connecting
  QElapsedTimer goodbye_;  ///< runs since the client's good-bye: what follows says nothing of the message
};

}  // namespace mail
