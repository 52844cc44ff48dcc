#include "platform/mail/smtp_transfer.h"

#include <curl/curl.h>

#include <algorithm>
#include <memory>

#include "platform/mail/mail_error.h"
#include "platform/mail/smtp_dialogue.h"

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr int kTlsPort = 465;

template <auto release>
struct Releaser {
  template <class T>
  void operator()(T* thing) const {
    release(thing);
  }
};
using Handle = std::unique_ptr<CURL, Releaser<curl_easy_cleanup>>;
using Url = std::unique_ptr<CURLU, Releaser<curl_url_cleanup>>;
using Text = std::unique_ptr<char, Releaser<curl_free>>;

struct ListReleaser {
  void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using List = std::unique_ptr<curl_slist, ListReleaser>;

List makeList(const std::vector<QByteArray>& entries) {
  List list;
  for (const QByteArray& entry : entries) {
    curl_slist* grown = curl_slist_append(list.get(), entry.constData());
    if (grown == nullptr) throw std::bad_alloc();
    static_cast<void>(list.release());
    list.reset(grown);
  }
  return list;
}

Handle makeHandle() {
  static const CURLcode started = curl_global_init(CURL_GLOBAL_DEFAULT);
  Handle handle(started == CURLE_OK ? curl_easy_init() : nullptr);
  if (!handle) throw std::bad_alloc();
  return handle;
}

QByteArray partOf(CURLU* url, CURLUPart part) {
  char* text = nullptr;
  if (curl_url_get(url, part, &text, 0) != CURLUE_OK) return {};
  const Text owned(text);
  return text;
}

/// The server as an address; TLS from the start on its own port.
Url serverUrl(const QString& server) {
  Url url(curl_url());
  if (!url) throw std::bad_alloc();
  const QByteArray text = "smtp://" + server.toUtf8();
  if (curl_url_set(url.get(), CURLUPART_URL, text.constData(), 0) != CURLUE_OK)
    fail(u"o endereço do servidor de e-mail não é válido"_s, {u"Servidor: "_s + server});
  if (partOf(url.get(), CURLUPART_PORT).toInt() == kTlsPort)
    curl_url_set(url.get(), CURLUPART_SCHEME, "smtps", 0);
  return url;
}

bool isEncrypted(CURLU* url) { return partOf(url, CURLUPART_SCHEME) == "smtps"; }

/// Gives the message to the client piece by piece.
struct Upload {
  const QByteArray& message;
  qsizetype sent = 0;

  static size_t read(char* room, size_t size, size_t count, void* self) {
    auto* upload = static_cast<Upload*>(self);
    const qsizetype bytes =
        std::min(upload->message.size() - upload->sent, static_cast<qsizetype>(size * count));
    std::copy_n(upload->message.constData() + upload->sent, bytes, room);
    upload->sent += bytes;
    return static_cast<size_t>(bytes);
  }
};

template <class Value>
void set(CURL* handle, CURLoption option, Value value) {
  curl_easy_setopt(handle, option, value);
}

void setLimits(CURL* handle, const Settings& settings) {
  // Up to the end of the login; what follows has the dialogue's limits.
  set(handle, CURLOPT_CONNECTTIMEOUT, long{settings.connectTimeout});
  set(handle, CURLOPT_NOSIGNAL, 1L);
  // A name server that doesn't answer is not waited for beyond that time.
  set(handle, CURLOPT_QUICK_EXIT, 1L);
  // The line is closed while the dialogue still listens, so that the good-bye has its limit.
  set(handle, CURLOPT_FORBID_REUSE, 1L);
}

/// TLS is taken where it is offered; the dialogue sees to it that it succeeds then.
void setSafety(CURL* handle, const QByteArray& caFile) {
  set(handle, CURLOPT_USE_SSL, long{CURLUSESSL_TRY});
  set(handle, CURLOPT_PROXY, "");
  if (!caFile.isEmpty()) set(handle, CURLOPT_CAINFO, caFile.constData());
}

}  // namespace

void transfer(const Outgoing& mail, const Settings& settings) {
  const Url url = serverUrl(mail.server);
  const List recipients = makeList(mail.recipients);
  const QByteArray user = mail.username.toUtf8();
  const QByteArray password = mail.password.toUtf8();
  const QByteArray caFile = settings.caFile.toLocal8Bit();
  Upload upload{mail.message};
  Dialogue dialogue(isEncrypted(url.get()), mail.password, settings.stallTimeout);

  const Handle handle = makeHandle();
  CURL* curl = handle.get();
  set(curl, CURLOPT_CURLU, url.get());
  set(curl, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  set(curl, CURLOPT_MAIL_FROM, mail.from.constData());
  set(curl, CURLOPT_MAIL_RCPT, recipients.get());
  if (!user.isEmpty()) {
    set(curl, CURLOPT_USERNAME, user.constData());
    set(curl, CURLOPT_PASSWORD, password.constData());
    // The methods that take user and password as they are, whatever else the server offers.
    set(curl, CURLOPT_LOGIN_OPTIONS, "AUTH=PLAIN;AUTH=LOGIN");
  }
  setLimits(curl, settings);
  setSafety(curl, caFile);
  dialogue.listenTo(curl);
  set(curl, CURLOPT_UPLOAD, 1L);
  set(curl, CURLOPT_READFUNCTION, &Upload::read);
  set(curl, CURLOPT_READDATA, &upload);
  set(curl, CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(mail.message.size()));

  const CURLcode result = curl_easy_perform(curl);
  if (result != CURLE_OK)
    fail(dialogue.failure(result), dialogue.details(mail.server), dialogue.silence(result));
}

}  // namespace mail
