#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "hosts/windows/win32.h"

// It needs windows.h.
#include <winsock2.h>

namespace kivu::testing {

// Answers requests on 127.0.0.1 with bytes as a test gives them, also those of a bad server.
class RawServer {
 public:
    struct Answer {
        std::string bytes;
        bool closes = true;    // after them; else nothing more comes
        bool endless = false;  // the bytes' last one again and again
    };

    RawServer() {
        WSADATA data{};
        ::WSAStartup(MAKEWORD(2, 2), &data);
        listener = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
        int length = sizeof address;
        auto* any = reinterpret_cast<sockaddr*>(&address);
        if (::bind(listener, any, length) != 0 || ::listen(listener, 16) != 0 ||
            ::getsockname(listener, any, &length) != 0)
            return;
        port = ::ntohs(address.sin_port);
        serving = std::thread([this] { Serve(); });
    }
    ~RawServer() {
        ::closesocket(listener);
        if (serving.joinable()) serving.join();
        {
            const std::scoped_lock lock(mutex);
            for (const SOCKET client : clients)
                ::shutdown(client, SD_BOTH);
        }
        for (std::thread& talk : talks)
            talk.join();
        for (const SOCKET client : clients)
            ::closesocket(client);
        ::WSACleanup();
    }
    RawServer(const RawServer&) = delete;
    RawServer& operator=(const RawServer&) = delete;

    bool IsRunning() const { return port != 0; }
    std::string Address(const std::string& path) const {
        return "http://127.0.0.1:" + std::to_string(port) + path;
    }
    // Before the first request.
    std::map<std::string, Answer> answers;

    static std::string Ok(const std::string& body, std::size_t announced) {
        return "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " +
               std::to_string(announced) + "\r\n\r\n" + body;
    }
    static std::string Status(const std::string& status, const std::string& headers = {}) {
        return "HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: 4\r\n" + headers +
               "\r\npage";
    }

 private:
    void Serve() {
        for (;;) {
            const SOCKET client = ::accept(listener, nullptr, nullptr);
            if (client == INVALID_SOCKET) return;
            const std::scoped_lock lock(mutex);
            clients.push_back(client);
            talks.emplace_back([this, client] { Talk(client); });
        }
    }
    void Talk(SOCKET client) {
        std::string request;
        char block[4096];
        while (request.find("\r\n\r\n") == request.npos) {
            const int length = ::recv(client, block, sizeof block, 0);
            if (length <= 0) return;
            request.append(block, static_cast<std::size_t>(length));
        }
        const std::size_t begin = request.find(' ') + 1;
        const auto found = answers.find(request.substr(begin, request.find(' ', begin) - begin));
        const Answer answer = found != answers.end() ? found->second : Answer{Status("404 No")};
        bool sent = Send(client, answer.bytes);
        const std::string more(65536, answer.bytes.empty() ? ' ' : answer.bytes.back());
        while (answer.endless && sent)
            sent = Send(client, more);
        if (answer.closes) {
            ::shutdown(client, SD_SEND);
            return;
        }
        // Until the other end, or the test, ends it.
        while (::recv(client, block, sizeof block, 0) > 0) {
        }
    }
    static bool Send(SOCKET client, const std::string& bytes) {
        std::size_t sent = 0;
        while (sent < bytes.size()) {
            const int length =
                ::send(client, bytes.data() + sent, static_cast<int>(bytes.size() - sent), 0);
            if (length <= 0) return false;
            sent += static_cast<std::size_t>(length);
        }
        return true;
    }

    SOCKET listener = INVALID_SOCKET;
    unsigned short port = 0;
    std::mutex mutex;
    std::vector<SOCKET> clients;
    std::vector<std::thread> talks;
    std::thread serving;
};

}  // namespace kivu::testing
