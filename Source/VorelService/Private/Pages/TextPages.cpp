// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Pages/PageLayout.h"

std::string MakeStartPage(const std::string& Address, bool bSeveralUsers)
{
	const char* const Introduction =
		bSeveralUsers
			? "<p>This service answers the chat of the Vorel AI plugin for those who have an account here, from a built-in guide to the "
			  "engine's C++. To use it, start the program with this address:</p>\n"
			: "<p>This service runs inside the program on your own machine, for it alone, and answers its chat from a built-in guide to "
			  "the engine's C++.</p>\n";
	const std::string Command = bSeveralUsers ? "<pre><code>vorel --service " + EscapeHtml(Address) + "</code></pre>\n" : "";
	const char* const SignIn = bSeveralUsers ? "<li><a href=\"/login\">Sign in</a> with this browser, to see your credits</li>\n" : "";
	return MakePage("Start", "Vorel AI service",
		Introduction + Command + "<ul>\n" + SignIn + "<li><a href=\"/billing\">Credits</a>: how many are left, and how to get more</li>\n" +
			"<li><a href=\"/plugin\">Plugin</a>: the current version</li>\n"
			"<li><a href=\"/openapi.json\">Description of the interface</a> for programs; chat completions are served at <code>" +
			EscapeHtml(Address) + "/v1</code></li>\n</ul>");
}

std::string MakeTermsPage()
{
	return MakePage("Terms", "Terms of use", R"html(
<p>These are short, because there is little to agree on.</p>
<h2>Who runs this service</h2>
<p>You do, if it came with the program that you started; else whoever set it up for you. The makers of Vorel AI neither run it nor have any
part in what you do with it.</p>
<h2>What you get</h2>
<p>Answers from a built-in guide to the engine's C++. They are looked up in articles, may be wrong or out of date, and come without any
warranty. Read code before you use it.</p>
<h2>What it costs</h2>
<p>Nothing. Credits limit how many answers are given in a day; they can't be bought and have no value.</p>
<h2>What is asked of you</h2>
<p>Keep your password to yourself, and do not use somebody else's account.</p>
<h2>Licence</h2>
<p>The software is under the MIT licence, whose text lies beside it in the file <code>LICENSE</code>.</p>)html");
}

std::string MakePrivacyPage()
{
	return MakePage("Privacy", "Privacy", R"html(
<p>What this service knows stays on the machine that it runs on. It sends nothing to anybody else: no telemetry, no advertising, no
statistics.</p>
<h2>What it stores</h2>
<ul>
<li>the name of your account</li>
<li>a hash of your password, where accounts have one; never the password</li>
<li>hashes of what keeps programs and browsers signed in, and when that runs out</li>
<li>how many credits you have left today</li>
</ul>
<h2>What it does not store</h2>
<p>Your questions and its answers. A question arrives with the conversation before it, is answered, and forgotten. The conversations that you
see in the program are kept by the program, in your own data folder.</p>
<h2>In the browser</h2>
<p>These pages use no scripts and load nothing from elsewhere. Where accounts have passwords, signing in here sets one cookie, which keeps you
signed in for a week or until you sign out, and is used for nothing else.</p>
<h2>How to be forgotten</h2>
<p>Logging out, in the program or here, deletes what kept you signed in. Where the service runs inside your own program, its file
<code>service.sqlite</code> in the data folder holds the rest, and you may delete it. Else whoever runs the service removes your account, with all
of the above.</p>)html");
}

std::string MakePluginPage(const std::string& Version)
{
	return MakePage("Plugin", "Vorel AI plugin", "<p>The current version is <strong>" + EscapeHtml(Version) + R"html(</strong>.</p>
<h2>How to get it</h2>
<p>The plugin is built from its source. In the folder that holds your copy:</p>
<pre><code>git pull
./run.sh</code></pre>
<p>The second command builds what has changed, and starts the new version. Close the running one first. Your conversations and settings stay.</p>
<h2>What has changed</h2>
<p>The file <code>CHANGELOG.md</code> in the same folder tells it, newest first. To read it before you decide:</p>
<pre><code>git fetch
git diff HEAD..@{upstream} -- CHANGELOG.md</code></pre>)html");
}

std::string MakeErrorPage(const std::string& Title, const std::string& Sentence)
{
	return MakePage(Title, Title, "<p>" + EscapeHtml(Sentence) + "</p>");
}
