// Search of pages that are opened as files. Browsers give these neither workers nor requests, so the
// search runs in a frame, and its index comes as a script.
(function () {
  'use strict';
  if (location.protocol !== 'file:') return;
  const indexUrl = document.currentScript.dataset.index;

  window.__search = {
    index: new Promise((resolve) => {
      window.haldgenSearchIndex = resolve;
      const script = document.createElement('script');
      script.src = indexUrl;
      document.head.append(script);
    }),
  };

  window.Worker = class extends EventTarget {
    constructor(url) {
      super();
      this.frame = document.createElement('iframe');
      this.frame.hidden = true;
      this.waiting = [];
      document.documentElement.append(this.frame);
      const inside = this.frame.contentWindow;
      inside.postMessage = (data) => this.dispatchEvent(new MessageEvent('message', {data}));
      const script = inside.document.createElement('script');
      script.src = url;
      script.onload = () => {
        for (const data of this.waiting) this.deliver(data);
        this.waiting = null;
      };
      inside.document.head.append(script);
    }

    deliver(data) {
      this.frame.contentWindow.dispatchEvent(new MessageEvent('message', {data}));
    }

    postMessage(data) {
      if (this.waiting) this.waiting.push(data);
      else this.deliver(data);
    }
  };
})();
