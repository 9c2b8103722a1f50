// The HTTP and WebSocket side of the cockpit (civetweb): serves the assets,
// hands checked page messages to a sink, and sends text to the pages.
#pragma once

#include <functional>
#include <mutex>
#include <set>
#include <string>

#include "host/cockpit/assets.h"
#include "host/cockpit/protocol.h"

struct mg_context;
struct mg_connection;

namespace kestrane::host::cockpit {

class Server {
public:
    using Sink = std::function<void(Request)>;
    Server(const Assets& assets, Sink sink) : assets_(assets), sink_(std::move(sink)) {}
    ~Server() { stop(); }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    bool start(const std::string& address, int port, std::string& error);
    void stop();
    int port() const { return port_; }

    // Sends to every page, or to the one connection `to`; a connection that
    // has closed meanwhile is skipped.
    void broadcast(const std::string& text);
    void send(const void* to, const std::string& text);
    std::size_t pages() const;

private:
    static int on_http(mg_connection* c, void* self);
    static int on_ws_connect(const mg_connection* c, void* self);
    static void on_ws_ready(mg_connection* c, void* self);
    static int on_ws_data(mg_connection* c, int bits, char* data, std::size_t n, void* self);
    static void on_ws_close(const mg_connection* c, void* self);

    const Assets& assets_;
    Sink sink_;
    mg_context* ctx_ = nullptr;
    int port_ = 0;
    mutable std::mutex mutex_;
    std::set<mg_connection*> pages_;
};

}  // namespace kestrane::host::cockpit
