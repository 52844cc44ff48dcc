#pragma once

#include "platform/forms/form.h"

// Fill a combo of the form, found by its name, from the database; a filter text narrows it.
void CarregaVendedores(forms::Form& form, const QString& filtro);
void CarregaTransportadoras(forms::Form& form, const QString& filtro);
void CarregaTiposMarketing(forms::Form& form);
void CarregaLocaisVenda(forms::Form& form);
void CarregaTiposEvento(forms::Form& form);
void CarregaTiposServico(forms::Form& form);
void CarregaColecoes(forms::Form& form);
void CarregaUsuarios(forms::Form& form);
enum class FiltroCliente { Nome, Documento };
void CarregaClientes(forms::Form& form, const QString& filtro, FiltroCliente por = FiltroCliente::Nome);
/// Contacts of a customer by its name, narrowed by the contact's own text.
void CarregaContatos(forms::Form& form, const QString& cliente, const QString& filtro);
