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
