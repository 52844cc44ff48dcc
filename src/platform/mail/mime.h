#pragma once

#include <curl/curl.h>

#include <QByteArray>
#include <memory>
#include <new>
#include <vector>

#include "platform/mail/mail_message.h"

namespace mail {

// What the client hands out, given back when its owner goes.
template <auto release>
struct Releaser {
  template <class T>
  void operator()(T* thing) const {
    release(thing);
  }
};
using Handle = std::unique_ptr<CURL, Releaser<curl_easy_cleanup>>;
using List = std::unique_ptr<curl_slist, Releaser<curl_slist_free_all>>;
using Mime = std::unique_ptr<curl_mime, Releaser<curl_mime_free>>;

[[nodiscard]] inline List makeList(const std::vector<QByteArray>& entries) {
  List list;
  for (const QByteArray& entry : entries) {
    curl_slist* grown = curl_slist_append(list.get(), entry.constData());
    if (grown == nullptr) throw std::bad_alloc();
    static_cast<void>(list.release());
    list.reset(grown);
  }
  return list;
}

/// The parts of a message and their type: its text, its HTML, then the files.
struct Parts {
  Mime mime;
  QByteArray typeHeader;
};
[[nodiscard]] Parts makeParts(CURL* handle, const MailMessage& mail);

}  // namespace mail
