#include "peers.h"

namespace kirto::bench {

std::vector<Peer> Peers() {
    std::vector<Peer> peers;
#ifdef KIRTO_BENCH_GIFLIB
    peers.push_back({"giflib", DecodeWithGiflib, EncodeWithGiflib, true, true});
#endif
#ifdef KIRTO_BENCH_LIBAV
    peers.push_back({"libavcodec", DecodeWithLibavcodec, EncodeWithLibavcodec, false, false});
#endif
    return peers;
}

}  // namespace kirto::bench
