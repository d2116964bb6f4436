// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "LocalService.h"

#include "BoundedTaskQueue.h"
#include "ChatReply.h"
#include "ChatRequest.h"
#include "Guide.h"
#include "GuideAnswer.h"
#include "PacedStream.h"
#include "Pages/Pages.h"

#include <array>
#include <httplib.h>
#include <thread>

namespace
{
constexpr const char* LoopbackHost = "127.0.0.1";
constexpr const char* JsonType = "application/json";
constexpr const char* HtmlType = "text/html; charset=utf-8";

struct FRoute
{
	const char* Path;
	const char* Method;
};
constexpr std::array<FRoute, 4> Routes = {{{"/", "GET"}, {"/billing", "GET"}, {"/v1/models", "GET"}, {"/v1/chat/completions", "POST"}}};

void Refuse(httplib::Response& Response, int Status, const std::string& Message)
{
	Response.status = Status;
	Response.set_content(MakeErrorBody(Message, Status < 500 ? "invalid_request_error" : "server_error"), JsonType);
}

// What the HTTP library refuses by itself has a status and no words.
void DescribeRefusal(const httplib::Request&, httplib::Response& Response)
{
	if (!Response.body.empty())
	{
		return;
	}
	const int Status = Response.status;
	Refuse(Response, Status,
		Status == 413   ? "The request is too large."
		: Status == 414 ? "The address is too long."
						: "The request can't be read.");
}
} // namespace

class FLocalService::FServer
{
public:
	FServer(const FLocalServiceOptions& InOptions, std::unique_ptr<FGuide> InGuide);
	~FServer();

	// The port, or -1.
	int Listen();

private:
	using EHandled = httplib::Server::HandlerResponse;

	void AddRoutes();
	EHandled CheckRequest(const httplib::Request& Request, httplib::Response& Response) const;
	bool IsOwnHost(const std::string& Host) const;
	void ServeChat(const httplib::Request& Request, httplib::Response& Response);
	void Stream(httplib::Response& Response, std::vector<std::string> Events);

	const FLocalServiceOptions Options;
	const std::unique_ptr<FGuide> Guide;
	FStopSignal StopSignal;
	FConnectionGate Gate;
	httplib::Server Http;
	int Port = -1;
	std::thread Thread;
};

FLocalService::FServer::FServer(const FLocalServiceOptions& InOptions, std::unique_ptr<FGuide> InGuide)
	: Options(InOptions)
	, Guide(std::move(InGuide))
	, Gate(InOptions.MaxConnections)
{
	Http.new_task_queue = [this]
	{
		return new FBoundedTaskQueue(Gate, Options.MaxConnections);
	};
	Http.set_payload_max_length(Options.MaxRequestBytes);
	// One request each: an idle connection would hold a worker, and the end of the program.
	Http.set_keep_alive_max_count(1);
	Http.set_keep_alive_timeout(2);
	Http.set_read_timeout(2);
	Http.set_tcp_nodelay(true);
	Http.set_error_handler(DescribeRefusal);
	Http.set_exception_handler([](const httplib::Request&, httplib::Response& Response, std::exception_ptr)
		{ Refuse(Response, 500, "The service failed to answer."); });
	AddRoutes();
}

FLocalService::FServer::~FServer()
{
	StopSignal.Stop();
	Gate.Open();
	Http.stop();
	if (Thread.joinable())
	{
		Thread.join();
	}
}

int FLocalService::FServer::Listen()
{
	Port = Http.bind_to_any_port(LoopbackHost);
	if (Port < 0)
	{
		return -1;
	}
	Thread = std::thread([this] { Http.listen_after_bind(); });
	// A server that is not yet running ignores being stopped.
	while (!Http.is_running())
	{
		std::this_thread::yield();
	}
	return Port;
}

void FLocalService::FServer::AddRoutes()
{
	Http.set_pre_routing_handler(
		[this](const httplib::Request& Request, httplib::Response& Response) { return CheckRequest(Request, Response); });
	Http.Get("/", [this](const httplib::Request&, httplib::Response& Response)
		{ Response.set_content(MakeStartPage(std::string("http://") + LoopbackHost + ":" + std::to_string(Port), false), HtmlType); });
	Http.Get("/billing", [](const httplib::Request&, httplib::Response& Response) { Response.set_content(MakeBillingPage({}), HtmlType); });
	Http.Get("/v1/models", [](const httplib::Request&, httplib::Response& Response) { Response.set_content(MakeModelList(), JsonType); });
	Http.Post(
		"/v1/chat/completions", [this](const httplib::Request& Request, httplib::Response& Response) { ServeChat(Request, Response); });
}

FLocalService::FServer::EHandled FLocalService::FServer::CheckRequest(const httplib::Request& Request, httplib::Response& Response) const
{
	// A web page must not reach the service, neither through a name that it points to this machine nor by a request across origins.
	const std::string Origin = Request.get_header_value("Origin");
	if (!IsOwnHost(Request.get_header_value("Host")) ||
		(!Origin.empty() && !(Origin.rfind("http://", 0) == 0 && IsOwnHost(Origin.substr(7)))))
	{
		Refuse(Response, 403, "This service is for this machine alone.");
		return EHandled::Handled;
	}
	for (const FRoute& Route : Routes)
	{
		if (Request.path != Route.Path)
		{
			continue;
		}
		if (Request.method == Route.Method || (Request.method == "HEAD" && std::string("GET") == Route.Method))
		{
			return EHandled::Unhandled;
		}
		Response.set_header("Allow", Route.Method);
		Refuse(Response, 405, std::string("Use ") + Route.Method + " here.");
		return EHandled::Handled;
	}
	Refuse(Response, 404, "There is nothing at this address.");
	return EHandled::Handled;
}

bool FLocalService::FServer::IsOwnHost(const std::string& Host) const
{
	const std::string Suffix = ":" + std::to_string(Port);
	return Host == LoopbackHost + Suffix || Host == "localhost" + Suffix;
}

void FLocalService::FServer::ServeChat(const httplib::Request& Request, httplib::Response& Response)
{
	FChatRequest Chat;
	std::string Error;
	if (!ParseChatRequest(Request.body, Chat, Error))
	{
		Refuse(Response, 400, Error);
		return;
	}
	const FChatReply Reply(Chat, ComposeGuideAnswer(*Guide, Chat.Questions));
	if (Chat.bStream)
	{
		Stream(Response, Reply.MakeEvents());
	}
	else
	{
		Response.set_content(Reply.MakeWhole(), JsonType);
	}
}

void FLocalService::FServer::Stream(httplib::Response& Response, std::vector<std::string> Events)
{
	Response.set_header("Cache-Control", "no-cache");
	const auto Paced = std::make_shared<FPacedStream>(std::move(Events), Options.PieceInterval, StopSignal);
	Response.set_chunked_content_provider("text/event-stream",
		[Paced](std::size_t, httplib::DataSink& Sink)
		{
			const std::string* const Event = Paced->GetNext();
			// A client that has gone fails the write.
			if (!Event || !Sink.write(Event->data(), Event->size()))
			{
				return false;
			}
			if (Paced->IsFinished())
			{
				Sink.done();
			}
			return true;
		});
}

std::unique_ptr<FLocalService> FLocalService::Start(const FLocalServiceOptions& Options, std::string& OutError)
{
	std::unique_ptr<FGuide> Guide = FGuide::Load(Options.GuideFolder, OutError);
	if (!Guide)
	{
		return nullptr;
	}
	auto Server = std::make_unique<FServer>(Options, std::move(Guide));
	const int Port = Server->Listen();
	if (Port < 0)
	{
		OutError = "The local service finds no free port on this machine.";
		return nullptr;
	}
	return std::unique_ptr<FLocalService>(
		new FLocalService(std::move(Server), std::string("http://") + LoopbackHost + ":" + std::to_string(Port)));
}

FLocalService::FLocalService(std::unique_ptr<FServer> InServer, std::string InAddress)
	: Server(std::move(InServer))
	, Address(std::move(InAddress))
{
}

FLocalService::~FLocalService() = default;
