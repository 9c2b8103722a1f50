#include "host/cockpit/server.h"

#include <civetweb.h>

#include <cstring>
#include <string>
#include <vector>

namespace kestrane::host::cockpit {

namespace {

constexpr std::size_t kMaxPages = 8;
constexpr int kOpText = 1;
constexpr int kOpClose = 8;

}  // namespace

bool Server::start(const std::string& address, int port, std::string& error) {
    mg_init_library(MG_FEATURES_WEBSOCKET);
    const std::string ports = address + ":" + std::to_string(port);
    // No document root: civetweb serves no file of its own, every request
    // goes through on_http.
    const char* options[] = {"listening_ports",
                             ports.c_str(),
                             "num_threads",
                             "16",
                             "request_timeout_ms",
                             "10000",
                             "enable_keep_alive",
                             "yes",
                             "websocket_timeout_ms",
                             "3600000",
                             nullptr};
    mg_callbacks callbacks{};
    ctx_ = mg_start(&callbacks, this, options);
    if (ctx_ == nullptr) {
        error = "cannot listen on " + ports;
        return false;
    }
    mg_set_request_handler(ctx_, "/", &Server::on_http, this);
    mg_set_websocket_handler(ctx_, "/ws", &Server::on_ws_connect, &Server::on_ws_ready, &Server::on_ws_data,
                             &Server::on_ws_close, this);
    mg_server_port sp[4]{};
    const int n = mg_get_server_ports(ctx_, 4, sp);
    port_ = n > 0 ? sp[0].port : port;
    return true;
}

void Server::stop() {
    if (ctx_ == nullptr)
        return;
    mg_stop(ctx_);
    ctx_ = nullptr;
    std::lock_guard lock(mutex_);
    pages_.clear();
}

int Server::on_http(mg_connection* c, void* self) {
    auto* s = static_cast<Server*>(self);
    const mg_request_info* info = mg_get_request_info(c);
    const bool head = std::strcmp(info->request_method, "HEAD") == 0;
    if (!head && std::strcmp(info->request_method, "GET") != 0) {
        mg_send_http_error(c, 405, "%s", "only GET and HEAD");
        return 405;
    }
    if (info->query_string != nullptr) {
        mg_send_http_error(c, 400, "%s", "no query strings");
        return 400;
    }
    // local_uri is decoded and stripped of dot segments; the asset map holds
    // the only paths there are.
    const Asset* a = info->local_uri ? s->assets_.find(info->local_uri) : nullptr;
    if (a == nullptr) {
        mg_send_http_error(c, 404, "%s", "not found");
        return 404;
    }
    mg_printf(c,
              "HTTP/1.1 200 OK\r\nContent-Type: %s\r\nContent-Length: %zu\r\nCache-Control: no-cache\r\n"
              "X-Content-Type-Options: nosniff\r\n\r\n",
              a->type.c_str(), a->body.size());
    if (!head)
        mg_write(c, a->body.data(), a->body.size());
    return 200;
}

int Server::on_ws_connect(const mg_connection* c, void* self) {
    auto* s = static_cast<Server*>(self);
    // Only the cockpit's own page may work the cockpit: a page of another
    // site in the same browser says where it comes from.
    const char* origin = mg_get_header(c, "Origin");
    const char* host = mg_get_header(c, "Host");
    if (origin != nullptr && (host == nullptr || std::string(origin) != std::string("http://") + host))
        return 1;
    std::lock_guard lock(s->mutex_);
    return s->pages_.size() < kMaxPages ? 0 : 1;  // 0 accepts
}

void Server::on_ws_ready(mg_connection* c, void* self) {
    auto* s = static_cast<Server*>(self);
    {
        std::lock_guard lock(s->mutex_);
        s->pages_.insert(c);
    }
    Request r;
    r.kind = Request::Hello;
    r.conn = c;
    s->sink_(std::move(r));
}

int Server::on_ws_data(mg_connection* c, int bits, char* data, std::size_t n, void* self) {
    auto* s = static_cast<Server*>(self);
    const int op = bits & 0xF;
    if (op == kOpClose)
        return 0;
    if (op != kOpText)
        return 1;  // pings, pongs and binary frames are not for the module
    Request r;
    std::string error;
    if (!parse_request(std::string_view(data, n), r, error)) {
        const std::string reply = R"({"t":"error","why":")" + error + "\"}";
        s->send(c, reply);
        return 1;
    }
    r.conn = c;
    s->sink_(std::move(r));
    return 1;
}

void Server::on_ws_close(const mg_connection* c, void* self) {
    auto* s = static_cast<Server*>(self);
    {
        std::lock_guard lock(s->mutex_);
        s->pages_.erase(const_cast<mg_connection*>(c));
    }
    Request r;
    r.kind = Request::Bye;
    r.conn = c;
    s->sink_(std::move(r));
}

void Server::broadcast(const std::string& text) {
    std::lock_guard lock(mutex_);
    for (mg_connection* c : pages_)
        mg_websocket_write(c, MG_WEBSOCKET_OPCODE_TEXT, text.data(), text.size());
}

void Server::send(const void* to, const std::string& text) {
    std::lock_guard lock(mutex_);
    auto it = pages_.find(static_cast<mg_connection*>(const_cast<void*>(to)));
    if (it != pages_.end())
        mg_websocket_write(*it, MG_WEBSOCKET_OPCODE_TEXT, text.data(), text.size());
}

std::size_t Server::pages() const {
    std::lock_guard lock(mutex_);
    return pages_.size();
}

}  // namespace kestrane::host::cockpit
