'use strict';

// Shows and reports that the covering element has gone.
const wrapper = document.querySelector('.plyr__video-wrapper');
const watch = new MutationObserver(() => {
    if (!wrapper.querySelector('.overlay')) {
        watch.disconnect();
        document.getElementById('cover').textContent = 'Kaydın üstü açık.';
        report('/demo/seen', { what: 'overlay-removed' });
    }
});
watch.observe(wrapper, { childList: true });

// The recording plays by itself unless the address says "paused=1".
const video = wrapper.querySelector('.video');
const toggle = document.getElementById('toggle');

function play() {
    video.play().catch(error => {
        if (error.name !== 'AbortError') {
            document.getElementById('cover').textContent = 'Kayıt oynatılamıyor: ' + error.name;
        }
    });
}

toggle.addEventListener('click', () => (video.paused ? play() : video.pause()));
video.addEventListener('play', () => { toggle.textContent = 'Duraklat'; });
video.addEventListener('pause', () => {
    toggle.textContent = 'Oynat';
    report('/demo/seen', { what: 'paused' });
});
document.addEventListener('click', () => report('/demo/seen', { what: 'click' }));
// Every turn of the loop begins with one.
video.addEventListener('playing', () => report('/demo/seen', { what: 'playing' }), { once: true });
if (new URLSearchParams(location.search).get('paused') !== '1') {
    play();
}
