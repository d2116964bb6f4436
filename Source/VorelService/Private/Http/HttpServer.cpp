// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/HttpServer.h"

#include "Accounts/ServiceDatabase.h"
#include "Http/Replies.h"

#include <sys/socket.h>

DEFINE_LOG_CATEGORY_STATIC(LogVorelService, Log, All);

namespace
{
// What the HTTP library refuses by itself has a status and no words.
void DescribeRefusal(const httplib::Request& Request, httplib::Response& Response)
{
	if (!Response.body.empty())
	{
		return;
	}
	const int Status = Response.status;
	Refuse(Request, Response, Status,
		Status == 413   ? "The request is too large."
		: Status == 414 ? "The address is too long."
						: "The request can't be read.");
}

const char* const NoAnswer = "The service failed to answer.";

void DescribeStoreFailure(const httplib::Request& Request, httplib::Response& Response, const FStoreError& Error)
{
	UE_LOG(LogVorelService, Error, TEXT("The service's data file can't be used: %s"), *Error.Detail);
	if (Error.Problem == EStoreProblem::Locked)
	{
		Response.set_header("Retry-After", "1");
	}
	// The words of the database may name what nobody else is to know.
	Refuse(Request, Response, 503, Error.Problem == EStoreProblem::Other ? NoAnswer : DescribeDataFile(Error));
}

void DescribeFailure(const httplib::Request& Request, httplib::Response& Response, std::exception_ptr Failure)
try
{
	std::rethrow_exception(Failure);
}
catch (const FStoreError& Error)
{
	DescribeStoreFailure(Request, Response, Error);
}
catch (...)
{
	Refuse(Request, Response, 500, NoAnswer);
}

// The library's own choice lets two programs share a port, which would take turns in answering.
void ReuseClosedPorts(socket_t Socket)
{
	const int Yes = 1;
	::setsockopt(Socket, SOL_SOCKET, SO_REUSEADDR, &Yes, sizeof(Yes));
}

// The pages show what others must neither keep nor frame, and their addresses hold what others must not be told.
httplib::Headers MakeDefaultHeaders()
{
	return {{"Cache-Control", "no-store"}, {"Referrer-Policy", "same-origin"}, {"X-Content-Type-Options", "nosniff"},
		{"X-Frame-Options", "DENY"}};
}
} // namespace

FHttpServer::FHttpServer(std::size_t MaxConnections, std::size_t MaxBodyBytes)
	: Gate(MaxConnections)
{
	Http.new_task_queue = [this, MaxConnections]
	{
		return new FBoundedTaskQueue(Gate, MaxConnections);
	};
	Http.set_payload_max_length(MaxBodyBytes);
	Http.set_tcp_nodelay(true);
	Http.set_socket_options(ReuseClosedPorts);
	Http.set_default_headers(MakeDefaultHeaders());
	Http.set_error_handler(DescribeRefusal);
	Http.set_exception_handler(DescribeFailure);
}

FHttpServer::~FHttpServer()
{
	Stop();
}

int FHttpServer::Bind(const std::string& Host, int Port)
{
	return Port == 0 ? Http.bind_to_any_port(Host) : Http.bind_to_port(Host, Port) ? Port : -1;
}

void FHttpServer::Run(std::vector<FRoute> Routes, FOwnAddresses Addresses)
{
	Rules = std::make_unique<FRequestRules>(std::move(Routes), std::move(Addresses));
	Http.set_pre_routing_handler(
		[this](const httplib::Request& Request, httplib::Response& Response)
		{
			using EResult = httplib::Server::HandlerResponse;
			// Nothing here is worth fetching in parts, and the library would repeat a part as often as it is asked for.
			const_cast<httplib::Request&>(Request).ranges.clear();
			return Rules->Allow(Request, Response) ? EResult::Unhandled : EResult::Handled;
		});
	for (const FRoute& Route : Rules->GetRoutes())
	{
		// The library reads the path as a pattern, which matters to none that was allowed.
		std::string("GET") == Route.Method ? Http.Get(Route.Path, Route.Handler) : Http.Post(Route.Path, Route.Handler);
	}
	Thread = std::thread([this] { Http.listen_after_bind(); });
	// A server that is not yet running ignores being stopped.
	while (!Http.is_running())
	{
		std::this_thread::yield();
	}
}

void FHttpServer::Stop()
{
	Gate.Open();
	Http.Disconnect();
	Http.stop();
	if (Thread.joinable())
	{
		Thread.join();
	}
}
