#pragma once

#include "platform/data/asked.h"
#include "platform/forms/form.h"

// Notices by e-mail to the users who subscribe to a named event.

/// Sends the notice of an event to its subscribers; where none of them has an address, nothing is sent.
/// tela: the calling screen. tipo: only "EMAIL" does anything. texto: what happened; with textoNoAssunto it
/// also stands in the subject. anexo: path of a file, or empty. Raises mail::MailError when the message can't
/// be sent.
void EnviaAvisoWorkFlow(forms::Form& tela, const QString& evento, const QString& tipo, const QString& texto,
                        bool textoNoAssunto, const QString& anexo);

/// Whether a notice of this event would go to anybody.
[[nodiscard]] bool temDestinatarioWorkFlow(const QString& evento);

/// Sends a plain message from the company's own address. Without server, address and password nothing
/// is sent. Raises mail::MailError when it can't be sent.
void EnviaEmailWorkFlow(const QString& destinatarios, const QString& copia, const QString& assunto,
                        const QString& mensagem, const QString& anexo);

// One column of an event by its code, empty when there is none.
data::Asked<QString> DescricaoEventoWorkFlow(const QString& evento);
data::Asked<QString> TextoEventoWorkFlow(const QString& evento);
data::Asked<QString> IdEventoWorkFlow(const QString& evento);

/// Subscribers whose subscription has not ended: their count and each id, with "^" after each ("2^7^9^").
[[nodiscard]] QString UsuariosEventoWorkFlow(const QString& evento);
