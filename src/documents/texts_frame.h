#pragma once

#include <QStringView>

// Fixed texts of the frames that all documents share: heads, letterheads, titles, signature, closing. %1, %2,
// … are filled in; every line ends with a line feed, which goes out as CR LF.
namespace textos {

inline constexpr QStringView kInicioHead =
    uR"(<!--Abrir Documento-->

<!DOCTYPE HTML PUBLIC '-//W3C//DTD HTML 4.0//EN'>
<html>
<head>
<meta http-equiv='Content-Type' content='text/html; charset=iso-8859-1'>
<title>%1</title>
<meta name='description' content=''>
<meta name='keywords' content=''>
<meta name='author' content='zarim- trevano'>
<meta name='generator' content='zarim - trevano'>
)";

inline constexpr QStringView kFimHead =
    uR"(</head>
<body>

)";

inline constexpr QStringView kEstilos =
    uR"(<style>
span.cabecalho1{color:#b09b6e; font-size:9pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:bold}
span.cabecalho2{color:#000000; font-size:7pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.titulo1{color:#b09b6e; font-size:13pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.titulo2{color:#624a28; font-size:14pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.titulo3{color:#624a28; font-size:12pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.titulo4{color:#624a28; font-size:11pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.dados1{color:#000000; font-size:6pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.dados1a{color:#000000; font-size:8pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.dados1b{color:#000000; font-size:7pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.dados1c{color:#624a28; font-size:8pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.dados2{color:#000000; font-size:9pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:bold}
span.dados3{color:#000000; font-size:10pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
span.dados4{color:#000000; font-size:11pt; text-decoration:none; FONT-FAMILY: verdana; font-weight:normal}
</style>
</head>
<body bgcolor=#ffffff>

)";

inline constexpr QStringView kHeadSimples =
    uR"(<html>
<!-- Creation date: 05/03/2008 -->
<head>
<meta http-equiv='Content-Type' content='text/html; charset=iso-8859-1'>
<title></title>
<meta name='description' content=''>
<meta name='keywords' content=''>
<meta name='author' content='trevano'>
<meta name='generator' content='Zarim'>
</head>
<body>

)";

// %1 image folder with file, %2 name, %3 CNPJ and IE, %4 address, %5 phones, %6 e-mail, %7 site. The last row
// has no opening line.
inline constexpr QStringView kCabecalhoEmpresa =
    uR"(<!--Cabeçalho da Empresa-->

<table border='1' align='center' width=670 style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:normal;'>
<tr>
<td>
    <table border='0' align='center' width=660>
        <tr align='center'>
            <td width='30%'><img src='%1'></td>
            <td align='left'>
                <table border='0'>
                <tr>
                <td style='FONT-SIZE: 10pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold;'>
                %2</td>
                </tr>
                <tr>
                <td style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:normal;'>
                %3</td>
                </tr>
                <tr>
                <td style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:normal;'>
                %4</td>
                </tr>
                <tr>
                <td style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:normal;'>
                %5</td>
                </tr>
                <td style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:normal;'>
                e-mail: %6 - Web-Site: %7</td>
                </tr>
                </table>
            </td>
        </tr>
    </table>
</td>
</tr>
</table>
)";

inline constexpr QStringView kCabecalhoLogo =
    uR"(
<!--Cabeçalho da Empresa-->
<table border='0' bgcolor=#ffffff align='center' width=600px cellspacing=0 cellpadding=5>
<tr>
<td align=center><img src='%1'></td>
</tr></table>
)";

// %1 image folder with file, %2 name, %3 address, %4 city, %5 site, %6 phone.
inline constexpr QStringView kCabecalhoFixo =
    uR"(<!-- Cabeçalho -->
<table border='0' width='800' align='center'>
<tr>
        <td width='300' align='center'>
            <img src='%1' border='0' alt='Logo Marta Tavora'>
        </td>
        <td width='500' align='center' >
            <table border='0' summary=''>
            <tr><td><font face='Verdana' size='2' ><b>%2</b></font></td></tr>
            <tr><td><font face='Verdana' size='1'>%3</font></td></tr>
            <tr><td><font face='Verdana' size='1'>%4</font></td></tr>
            <tr><td><font face='Verdana' size='1'>Site: %5</font></td></tr>
            <tr><td><font face='Verdana' size='1'>%6</font></td></tr>
            </table>
        </td>
    </tr>
</table>
<br>
<br>
)";

// %1 alignment, %2 text.
inline constexpr QStringView kNomeRelatorio =
    uR"(<!--Nome do Relatório-->
<P>
<table border='0' align='center' width=670>
<tr>
<td style='FONT-SIZE: 10pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold' align='%1'>
%2</td>
</tr>
</table>
)";

inline constexpr QStringView kNomeRelatorioEstilos =
    uR"(<!--Nome do Relatório-->
<table align='center' width=660px height=10px><tr><td></td></tr></table>
<table border='0' align='center' width=670 bgcolor=#ffffff cellspacing=0 cellpadding=2>
<tr>
    <td align='center'> <span class='titulo1'>%1</span></td>
</tr>
</table>
)";

// The cells of the first two rows are left empty for signing.
inline constexpr QStringView kAssinatura =
    uR"(<!--Nome do Relatório-->
<P>
<table border='0' align='center' width=660>
<tr>
<td width='100%' align='left' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'>De acordo,</td>
</tr>
</table>
<table border='0' align='center' width=660>
<tr height=75x>
<td width='40%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'></td>
<td width='40%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'></td>
<td width='20%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'></td>
</tr>
<tr>
<td width='40%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'></td>
<td width='40%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'></td>
<td width='20%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'></td>
</tr>
<tr>
<td width='40%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'>Comprador</td>
<td width='40%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'>Assinatura</td>
<td width='20%' align='center' style='FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:bold'>Data</td>
</tr>
</table>
)";

inline constexpr QStringView kFecha =
    uR"(<!--Fechar Documento-->
</body>
</html>
)";

}  // namespace textos
