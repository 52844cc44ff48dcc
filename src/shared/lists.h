#pragma once

#include "platform/forms/form.h"

// Fill a combo of the form, found by its name, from the database; a filter text narrows it.
void CarregaVendedores(forms::Form& tela, const QString& filtro);
void CarregaTransportadoras(forms::Form& tela, const QString& filtro);
void CarregaTiposMarketing(forms::Form& tela);
void CarregaLocaisVenda(forms::Form& tela);
void CarregaTiposEvento(forms::Form& tela);
void CarregaTiposServico(forms::Form& tela);
void CarregaColecoes(forms::Form& tela);
void CarregaUsuarios(forms::Form& tela);
enum class FiltroCliente { Nome, Documento };
void CarregaClientes(forms::Form& tela, const QString& filtro, FiltroCliente por = FiltroCliente::Nome);
/// Contacts of a customer by its name, narrowed by the contact's own text.
void CarregaContatos(forms::Form& tela, const QString& cliente, const QString& filtro);
