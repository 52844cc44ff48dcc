#pragma once

#include <curl/curl.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace mail {

/// Listens to what the client and the server say to each other, to tell which step failed and with what
/// answer. Outlives the transfer that it listens to.
class Dialogue {
 public:
  void listenTo(CURL* handle);

  /// What failed, in Portuguese, as the end of "O e-mail não foi enviado: …".
  [[nodiscard]] QString failure(CURLcode result) const;
  /// Server and its last answer, a line each.
  [[nodiscard]] QStringList details(const QString& server) const;

 private:
  static int listen(CURL* handle, curl_infotype type, char* data, size_t size, void* self);
  void said(const QByteArray& command);

  [[nodiscard]] bool refused() const;

  QString step_;  ///< what a refusal of the last command means; empty while connecting
  QByteArray answer_;
  bool leaving_ = false;  ///< the client has said good-bye: what follows tells nothing
};

}  // namespace mail
