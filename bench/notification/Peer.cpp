#include "Peer.hpp"

namespace corvane::bench {

namespace {

std::vector<const Peer*>& list() {
    static std::vector<const Peer*> peers;
    return peers;
}

} // namespace

Peer::Peer(std::string_view peerName, MakeSubject makeSubject)
    : name_(peerName), makeSubject_(makeSubject) {
    list().push_back(this);
}

const std::vector<const Peer*>& Peer::all() {
    return list();
}

} // namespace corvane::bench
