// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Pages/PageLayout.h"

#include "Pages/PageStyle.h"

#include <array>
#include <cstring>
#include <sodium.h>

namespace
{
std::string MakeStyleHash()
{
	std::array<unsigned char, crypto_hash_sha256_BYTES> Hash{};
	crypto_hash_sha256(Hash.data(), reinterpret_cast<const unsigned char*>(PageStyle), std::strlen(PageStyle));
	std::array<char, sodium_base64_ENCODED_LEN(crypto_hash_sha256_BYTES, sodium_base64_VARIANT_ORIGINAL)> Text{};
	return sodium_bin2base64(Text.data(), Text.size(), Hash.data(), Hash.size(), sodium_base64_VARIANT_ORIGINAL);
}

constexpr const char* Footer = R"html(
<footer>
<nav aria-label="Pages of this service">
<ul>
<li><a href="/">Start</a></li>
<li><a href="/billing">Credits</a></li>
<li><a href="/plugin">Plugin</a></li>
<li><a href="/tos">Terms</a></li>
<li><a href="/privacy">Privacy</a></li>
</ul>
</nav>
</footer>
)html";
} // namespace

std::string MakePage(std::string_view Title, std::string_view Heading, std::string_view Content)
{
	std::string Page =
		"<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
		"<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<meta name=\"color-scheme\" content=\"light dark\">\n";
	Page.append("<title>").append(EscapeHtml(Title)).append(" - Vorel AI</title>\n");
	Page.append("<link rel=\"icon\" href=\"").append(PageIcon).append("\">\n");
	Page.append("<style>").append(PageStyle).append("</style>\n</head>\n<body>\n");
	Page.append("<header><a href=\"/\" aria-label=\"Vorel AI, start page\">").append(PageLogo).append("</a></header>\n");
	Page.append("<main>\n<div class=\"card\">\n<h1>").append(EscapeHtml(Heading)).append("</h1>\n");
	return Page.append(Content).append("\n</div>\n</main>").append(Footer).append("</body>\n</html>\n");
}

std::string EscapeHtml(std::string_view Text)
{
	std::string Escaped;
	for (const char Character : Text)
	{
		switch (Character)
		{
		case '&':
			Escaped += "&amp;";
			break;
		case '<':
			Escaped += "&lt;";
			break;
		case '>':
			Escaped += "&gt;";
			break;
		case '"':
			Escaped += "&quot;";
			break;
		case '\'':
			Escaped += "&#39;";
			break;
		default:
			Escaped += Character;
		}
	}
	return Escaped;
}

std::string MakeHiddenInputs(const FHiddenFields& Fields)
{
	std::string Inputs;
	for (const auto& [Name, Value] : Fields)
	{
		Inputs += "<input type=\"hidden\" name=\"" + EscapeHtml(Name) + "\" value=\"" + EscapeHtml(Value) + "\">\n";
	}
	return Inputs;
}

std::string MakePageSecurityPolicy(const std::string& Redirect)
{
	static const std::string StyleHash = MakeStyleHash();
	// An address like [::1] can't be named here, hence the whole scheme.
	const std::string Origin = Redirect.substr(0, Redirect.find('/', Redirect.find("//") + 2));
	const std::string Target = Redirect.empty() ? "" : Origin.find('[') == std::string::npos ? ' ' + Origin : " http:";
	return "default-src 'none'; style-src 'sha256-" + StyleHash + "'; img-src data:; form-action 'self'" + Target +
		   "; base-uri 'none'; frame-ancestors 'none'";
}
