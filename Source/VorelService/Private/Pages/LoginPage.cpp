// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Pages/PageLayout.h"

namespace
{
std::string MakeIntroduction(const FLoginPage& Page)
{
	if (!Page.bForProgram)
	{
		return "<p>Sign in here to see your credits. The program signs in by itself.</p>\n";
	}
	return "<p><strong>Vorel AI</strong> on this computer asks to use your account for its chat, and to see your name and credits.</p>\n"
		   "<p class=\"quiet\">Go on only if you have just chosen to log in there.</p>\n";
}

std::string MakeProblem(const FLoginPage& Page)
{
	return Page.Problem.empty() ? std::string()
								: "<p class=\"problem\" role=\"alert\" id=\"problem\">" + EscapeHtml(Page.Problem) + "</p>\n";
}

// What else belongs to a field: the problem, and where the user goes on typing.
std::string MakeFieldState(const FLoginPage& Page, const char* Hint, bool bFocus)
{
	std::string Descriptions = Hint;
	if (!Page.Problem.empty())
	{
		Descriptions += Descriptions.empty() ? "problem" : " problem";
	}
	const std::string Described = Descriptions.empty() ? std::string() : " aria-describedby=\"" + Descriptions + "\"";
	return Described + (bFocus ? " autofocus" : "");
}

std::string MakeNameField(const FLoginPage& Page)
{
	const char* const Label = Page.bAskPassword ? "Account name" : "Your name";
	const std::string Hint =
		Page.bAskPassword ? "" : "<p class=\"quiet\" id=\"hint\">Asked once. The program shows it below the chat.</p>\n";
	// Of a name and a password that were refused together, the password is the one that is not seen.
	const bool bFocus = Page.NameTyped.empty() || !Page.bAskPassword;
	return std::string("<label for=\"name\">") + Label + "</label>\n" + "<input id=\"name\" name=\"name\" value=\"" +
		   EscapeHtml(Page.NameTyped) + "\" required autocomplete=\"username\" autocapitalize=\"none\" spellcheck=\"false\"" +
		   MakeFieldState(Page, Hint.empty() ? "" : "hint", bFocus) + ">\n" + Hint;
}

std::string MakePasswordField(const FLoginPage& Page)
{
	const bool bFocus = !Page.NameTyped.empty();
	return "<label for=\"password\">Password</label>\n"
		   "<input id=\"password\" name=\"password\" type=\"password\" required autocomplete=\"current-password\"" +
		   MakeFieldState(Page, "", bFocus) + ">\n";
}

std::string MakeButtons(const FLoginPage& Page)
{
	const std::string Allow = Page.AccountName.empty() ? "Sign in" : "Continue as " + EscapeHtml(Page.AccountName);
	const bool bFocus = !Page.AccountName.empty();
	return std::string("<div class=\"buttons\">\n<button class=\"first\" name=\"action\" value=\"allow\"") +
		   (bFocus ? " autofocus>" : ">") + Allow + "</button>\n" +
		   (Page.bForProgram ? "<button name=\"action\" value=\"cancel\" formnovalidate>Cancel</button>\n" : "") + "</div>\n";
}
} // namespace

std::string MakeLoginPage(const FLoginPage& Page)
{
	// The title is read first, and tells that the page is there again.
	const char* const Title = Page.Problem.empty() ? "Sign in" : "Not signed in";
	return MakePage(Title, "Sign in",
		MakeIntroduction(Page) + MakeProblem(Page) + "<form method=\"post\" action=\"/login\">\n" + MakeHiddenInputs(Page.Hidden) +
			(Page.AccountName.empty() ? MakeNameField(Page) : "") + (Page.bAskPassword ? MakePasswordField(Page) : "") + MakeButtons(Page) +
			"</form>");
}
