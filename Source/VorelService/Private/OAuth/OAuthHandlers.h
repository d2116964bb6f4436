// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <httplib.h>

struct FServiceParts;

// What programs ask without a browser, by RFC 8414, RFC 6749 and RFC 7009.
void ServeMetadata(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);
void ServeToken(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);
void ServeRevocation(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);
